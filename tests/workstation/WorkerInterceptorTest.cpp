#include "workstation/WorkerInterceptor.h"

#include "contract/ErrorInfo.h"
#include "tests/workstation/WorkerTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>

namespace {

using namespace std::chrono_literals;
using contract::kSuccess;
using contract::kUnspecifiedFailure;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class WorkerInterceptorTest : public WorkerTest {};

TEST_F(WorkerInterceptorTest, CallRunsOnTheSameOtherThreadEachTime) {
    std::vector<std::thread::id> threads;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Call([&] {
                      threads.push_back(std::this_thread::get_id());
                      return kSuccess;
                  }),
                  kSuccess);
    }
    ASSERT_THAT(threads, SizeIs(2));
    EXPECT_NE(threads[0], m_ourThread);
    EXPECT_EQ(threads[0], threads[1]);
}

TEST_F(WorkerInterceptorTest, StatusComesBack) {
    EXPECT_EQ(Call([] { return Status(7); }), Status(7));
    EXPECT_EQ(Call([] { return kUnspecifiedFailure; }), kUnspecifiedFailure);
}

TEST_F(WorkerInterceptorTest, ShortCallHandlesNoEvents) {
    workstation::CWorkerInterceptor unhurried(std::make_unique<workstation::CQtEventLoop>(),
                                              m_observer, {.shortCall = 10s, .paintInterval = 10s});
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
    OnceACallLasts([&] { release.set_value(); });
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

TEST_F(WorkerInterceptorTest, DescriptionOfAFailingCallIsHandedOver) {
    contract::SetErrorInfo("stale");
    EXPECT_EQ(Call([] {
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
