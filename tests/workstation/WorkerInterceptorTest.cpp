#include "workstation/WorkerInterceptor.h"

#include "contract/ErrorInfo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <future>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using contract::kSuccess;
using contract::kUnspecifiedFailure;
using contract::Status;
using interception::Operation;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr Operation kQuery{"HardwareInfo.GetSerialNumber", interception::Delivers::Value};
constexpr Operation kModeEvent{"ProgrammingDeviceControlEvents.ModeChanged",
                               interception::Delivers::Nothing};

class CountingObserver : public workstation::ICallObserver {
public:
    void CallLasts(const Operation& operation) override { m_lasting.emplace_back(operation.name); }
    void CallReturned(const Operation& operation) override {
        m_returned.emplace_back(operation.name);
    }

    std::vector<std::string> m_lasting;
    std::vector<std::string> m_returned;
};

/// A widget that counts how often it was painted and what input reached it.
class Canvas : public QWidget {
public:
    int m_paints = 0;
    int m_inputs = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++m_paints; }
    void keyPressEvent(QKeyEvent*) override { ++m_inputs; }
    void mousePressEvent(QMouseEvent*) override { ++m_inputs; }
};

class WorkerInterceptorTest : public testing::Test {
protected:
    Status Call(interception::FunctionRef<Status()> run) { return m_interceptor.Call(kQuery, run); }

    void Raise(std::function<Status()> handler) {
        EXPECT_EQ(m_interceptor.Deliver(kModeEvent, std::move(handler)), kSuccess);
    }
    std::function<Status()> Note(const std::string& name) {
        return [this, name] {
            EXPECT_EQ(std::this_thread::get_id(), m_ourThread);
            m_heard.push_back(name);
            return kSuccess;
        };
    }

    /// A device call that lasts until the user-interface thread has done something.
    Status CallUntil(std::future<void> released) {
        return Call([&] {
            EXPECT_EQ(released.wait_for(10s), std::future_status::ready);
            return kSuccess;
        });
    }

    const std::thread::id m_ourThread = std::this_thread::get_id();
    CountingObserver m_observer;
    workstation::CWorkerInterceptor m_interceptor{m_observer};
    std::vector<std::string> m_heard;
};

TEST_F(WorkerInterceptorTest, CallRunsOnTheSameOtherThreadEachTime) {
    std::vector<std::thread::id> threads;
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(Call([&] {
                      threads.push_back(std::this_thread::get_id());
                      return kSuccess;
                  }),
                  kSuccess);
    ASSERT_THAT(threads, SizeIs(2));
    EXPECT_NE(threads[0], m_ourThread);
    EXPECT_EQ(threads[0], threads[1]);
}

TEST_F(WorkerInterceptorTest, StatusComesBack) {
    EXPECT_EQ(Call([] { return Status(7); }), Status(7));
    EXPECT_EQ(Call([] { return kUnspecifiedFailure; }), kUnspecifiedFailure);
}

TEST_F(WorkerInterceptorTest, ShortCallHandlesNoEvents) {
    workstation::CWorkerInterceptor unhurried(m_observer, {.shortCall = 10s, .paintInterval = 10s});
    bool handled = false;
    QTimer::singleShot(0, [&] { handled = true; });
    EXPECT_EQ(unhurried.Call(kQuery, [] { return kSuccess; }), kSuccess);
    EXPECT_FALSE(handled);
    EXPECT_THAT(m_observer.m_lasting, IsEmpty());
    EXPECT_THAT(m_observer.m_returned, SizeIs(1));
    QCoreApplication::processEvents();
}

TEST_F(WorkerInterceptorTest, LongCallIsReportedAndHandlesEvents) {
    std::promise<void> release;
    QTimer::singleShot(30, [&] { release.set_value(); });
    EXPECT_EQ(CallUntil(release.get_future()), kSuccess);
    EXPECT_THAT(m_observer.m_lasting, ElementsAre("HardwareInfo.GetSerialNumber"));
    EXPECT_THAT(m_observer.m_returned, ElementsAre("HardwareInfo.GetSerialNumber"));
}

TEST_F(WorkerInterceptorTest, CallFromTheWorkerRunsWhereItIs) {
    std::thread::id outer;
    std::thread::id inner;
    EXPECT_EQ(Call([&] {
                  outer = std::this_thread::get_id();
                  return Call([&] {
                      inner = std::this_thread::get_id();
                      return Status(5);
                  });
              }),
              Status(5));
    EXPECT_EQ(outer, inner);
}

TEST_F(WorkerInterceptorTest, EventsOfAShortCallArriveInOrderBeforeItReturns) {
    EXPECT_EQ(Call([&] {
                  for (const char* name : {"first", "second", "third"})
                      Raise(Note(name));
                  return kSuccess;
              }),
              kSuccess);
    EXPECT_THAT(m_heard, ElementsAre("first", "second", "third"));
}

TEST_F(WorkerInterceptorTest, EventOfALongCallArrivesWhileItLasts) {
    std::promise<void> heard;
    EXPECT_EQ(Call([&] {
                  Raise([&] {
                      heard.set_value();
                      return kSuccess;
                  });
                  EXPECT_EQ(heard.get_future().wait_for(10s), std::future_status::ready);
                  return kSuccess;
              }),
              kSuccess);
}

TEST_F(WorkerInterceptorTest, EventBeforeTheWaitNeedsNoOtherToBeHeard) {
    // The second call: start-up events of the loop, which would wake it, are gone by then.
    for (int i = 0; i < 2; ++i) {
        QCoreApplication::processEvents();
        std::promise<void> heard;
        EXPECT_EQ(Call([&] {
                      Raise([&] {
                          heard.set_value();
                          return kSuccess;
                      });
                      EXPECT_EQ(heard.get_future().wait_for(10s), std::future_status::ready);
                      return kSuccess;
                  }),
                  kSuccess);
    }
}

TEST_F(WorkerInterceptorTest, HundredEventsOfALongCallAreAllHeard) {
    std::promise<void> release;
    QTimer::singleShot(50, [&] { release.set_value(); });
    auto released = release.get_future();
    EXPECT_EQ(Call([&] {
                  for (int i = 0; i < 100; ++i)
                      Raise(Note(std::to_string(i)));
                  EXPECT_EQ(released.wait_for(10s), std::future_status::ready);
                  return kSuccess;
              }),
              kSuccess);
    ASSERT_THAT(m_heard, SizeIs(100));
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(m_heard[static_cast<std::size_t>(i)], std::to_string(i));
}

TEST_F(WorkerInterceptorTest, EventRaisedOnOurThreadIsDeliveredAtOnce) {
    Raise(Note("direct"));
    EXPECT_THAT(m_heard, ElementsAre("direct"));
}

TEST_F(WorkerInterceptorTest, HandlerThatCallsTheDeviceEndsBeforeTheNextEvent) {
    EXPECT_EQ(Call([&] {
                  Raise([this] {
                      EXPECT_EQ(Call([this] {
                                    Raise(Note("of the inner call"));
                                    return kSuccess;
                                }),
                                kSuccess);
                      return Note("first handler ends")();
                  });
                  Raise(Note("second"));
                  return kSuccess;
              }),
              kSuccess);
    EXPECT_THAT(m_heard, ElementsAre("of the inner call", "first handler ends", "second"));
}

TEST_F(WorkerInterceptorTest, DescriptionOfAFailingCallIsHandedOver) {
    contract::SetErrorInfo("stale");
    EXPECT_EQ(Call([] {
                  contract::SetErrorInfo("cable unplugged");
                  return kUnspecifiedFailure;
              }),
              kUnspecifiedFailure);
    EXPECT_EQ(contract::TakeErrorInfo(), "cable unplugged");
}

TEST_F(WorkerInterceptorTest, DescriptionOutlivesTheHandlersOfTheCallsEvents) {
    EXPECT_EQ(Call([&] {
                  Raise([] {
                      contract::SetErrorInfo("left by a handler");
                      return kSuccess;
                  });
                  contract::SetErrorInfo("cable unplugged");
                  return kUnspecifiedFailure;
              }),
              kUnspecifiedFailure);
    EXPECT_EQ(contract::TakeErrorInfo(), "cable unplugged");
}

TEST_F(WorkerInterceptorTest, DescriptionOfASuccessIsNotTakenForTheNextFailures) {
    EXPECT_EQ(Call([] {
                  contract::SetErrorInfo("left by a success");
                  return kSuccess;
              }),
              kSuccess);
    EXPECT_EQ(Call([] { return kUnspecifiedFailure; }), kUnspecifiedFailure);
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST_F(WorkerInterceptorTest, WindowIsPaintedDuringALongCall) {
    Canvas canvas;
    canvas.show();
    QCoreApplication::processEvents();
    const int before = canvas.m_paints;
    std::promise<void> release;
    QTimer repaint;
    QObject::connect(&repaint, &QTimer::timeout, [&] {
        canvas.update();
        if (canvas.m_paints >= before + 3) {
            repaint.stop();
            release.set_value();
        }
    });
    repaint.start(1);
    EXPECT_EQ(CallUntil(release.get_future()), kSuccess);
    EXPECT_GE(canvas.m_paints, before + 3);
}

TEST_F(WorkerInterceptorTest, WindowIsPaintedBetweenManyShortCalls) {
    Canvas canvas;
    canvas.show();
    QCoreApplication::processEvents();
    const int before = canvas.m_paints;
    const auto start = std::chrono::steady_clock::now();
    // None of the calls gets an event loop of its own.
    workstation::CWorkerInterceptor patient(m_observer, {.shortCall = 10s});
    while (canvas.m_paints < before + 3 && std::chrono::steady_clock::now() - start < 10s) {
        canvas.update();
        EXPECT_EQ(patient.Call(kQuery, [] { return kSuccess; }), kSuccess);
    }
    EXPECT_GE(canvas.m_paints, before + 3);
    EXPECT_THAT(m_observer.m_lasting, IsEmpty());
}

TEST_F(WorkerInterceptorTest, InputDuringALongCallIsDiscarded) {
    Canvas canvas;
    canvas.show();
    std::promise<void> release;
    QTimer::singleShot(30, [&] {
        QCoreApplication::postEvent(&canvas,
                                    new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier));
        QKeyEvent direct(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier);
        QCoreApplication::sendEvent(&canvas, &direct);
        QTimer::singleShot(0, [&] { release.set_value(); });
    });
    EXPECT_EQ(CallUntil(release.get_future()), kSuccess);
    QCoreApplication::processEvents();
    EXPECT_EQ(canvas.m_inputs, 0);
    QKeyEvent afterwards(QEvent::KeyPress, Qt::Key_C, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas, &afterwards);
    EXPECT_EQ(canvas.m_inputs, 1);
}

TEST_F(WorkerInterceptorTest, BoxOpenedByAHandlerGetsItsInput) {
    bool closedByKey = false;
    EXPECT_EQ(Call([&] {
                  Raise([&] {
                      QMessageBox box(QMessageBox::Warning, "Caption", "Text", QMessageBox::Ok);
                      QTimer::singleShot(0, &box, [&] {
                          QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
                          QCoreApplication::sendEvent(&box, &key);
                          closedByKey = !box.isVisible();
                          box.done(0);
                      });
                      box.exec();
                      return kSuccess;
                  });
                  return kSuccess;
              }),
              kSuccess);
    EXPECT_TRUE(closedByKey);
}

TEST_F(WorkerInterceptorTest, ApplicationExitDoesNotEndALongCall) {
    std::promise<void> release;
    QTimer::singleShot(25, [] { QCoreApplication::exit(3); });
    QTimer::singleShot(60, [&] { release.set_value(); });
    bool hasEnded = false;
    auto released = release.get_future();
    EXPECT_EQ(Call([&] {
                  EXPECT_EQ(released.wait_for(10s), std::future_status::ready);
                  hasEnded = true;
                  return kSuccess;
              }),
              kSuccess);
    EXPECT_TRUE(hasEnded);
}

TEST_F(WorkerInterceptorTest, BusyFromStartToEndOfACall) {
    EXPECT_FALSE(m_interceptor.IsBusy());
    bool wasBusyInHandler = false;
    EXPECT_EQ(Call([&] {
                  Raise([&] {
                      wasBusyInHandler = m_interceptor.IsBusy();
                      return kSuccess;
                  });
                  return kSuccess;
              }),
              kSuccess);
    EXPECT_TRUE(wasBusyInHandler);
    EXPECT_FALSE(m_interceptor.IsBusy());
}

}
