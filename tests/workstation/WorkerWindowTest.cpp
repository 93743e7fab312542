#include "tests/workstation/WorkerTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace {

using namespace std::chrono_literals;
using contract::kSuccess;
using testing::IsEmpty;

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

/// The window while a device is called.
class WorkerWindowTest : public WorkerTest {};

TEST_F(WorkerWindowTest, WindowIsPaintedDuringALongCall) {
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

TEST_F(WorkerWindowTest, WindowIsPaintedBetweenManyShortCalls) {
    Canvas canvas;
    canvas.show();
    QCoreApplication::processEvents();
    const int before = canvas.m_paints;
    const auto start = std::chrono::steady_clock::now();
    // None of the calls gets an event loop of its own.
    workstation::CWorkerInterceptor patient(std::make_unique<workstation::CQtEventLoop>(),
                                            m_observer, {.shortCall = 10s});
    while (canvas.m_paints < before + 3 && std::chrono::steady_clock::now() - start < 10s) {
        canvas.update();
        EXPECT_EQ(patient.Call(kQuery, [] { return kSuccess; }), kSuccess);
    }
    EXPECT_GE(canvas.m_paints, before + 3);
    EXPECT_THAT(m_observer.m_lasting, IsEmpty());
}

TEST_F(WorkerWindowTest, InputDuringALongCallIsDiscarded) {
    Canvas canvas;
    canvas.show();
    std::promise<void> release;
    OnceACallLasts([&] {
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

TEST_F(WorkerWindowTest, BoxOpenedByAHandlerGetsItsInput) {
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

TEST_F(WorkerWindowTest, ApplicationExitDoesNotEndALongCall) {
    std::promise<void> release;
    // Several rounds of events after the exit, each of which it could have ended.
    QTimer rounds;
    QObject::connect(&rounds, &QTimer::timeout, [&, round = 0]() mutable {
        if (++round == 3) {
            rounds.stop();
            release.set_value();
        }
    });
    OnceACallLasts([&] {
        QCoreApplication::exit(3);
        rounds.start(0);
    });
    bool hasEnded = false;
    auto released = release.get_future();
    EXPECT_EQ(Call([&] {
                  EXPECT_EQ(released.wait_for(10s), std::future_status::ready);
                  hasEnded = true;
                  return kSuccess;
              }),
              kSuccess);
    EXPECT_TRUE(hasEnded);
    // An application forgets its exit only by running, and no box would stay open until then.
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    QCoreApplication::exec();
}

}
