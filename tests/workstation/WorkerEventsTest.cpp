#include "contract/ErrorInfo.h"
#include "tests/workstation/WorkerTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>

namespace {

using namespace std::chrono_literals;
using contract::kSuccess;
using contract::kUnspecifiedFailure;
using testing::ElementsAre;
using testing::SizeIs;

/// Events that a device raises while it is called.
class WorkerEventsTest : public WorkerTest {};

TEST_F(WorkerEventsTest, EventsOfAShortCallArriveInOrderBeforeItReturns) {
    EXPECT_EQ(Call([&] {
                  for (const char* name : {"first", "second", "third"}) {
                      Raise(Note(name));
                  }
                  return kSuccess;
              }),
              kSuccess);
    EXPECT_THAT(m_heard, ElementsAre("first", "second", "third"));
}

TEST_F(WorkerEventsTest, EventOfALongCallArrivesWhileItLasts) {
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

TEST_F(WorkerEventsTest, EventBeforeTheWaitNeedsNoOtherToBeHeard) {
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

TEST_F(WorkerEventsTest, HundredEventsOfALongCallAreAllHeard) {
    std::promise<void> release;
    OnceACallLasts([&] { release.set_value(); });
    auto released = release.get_future();
    EXPECT_EQ(Call([&] {
                  for (int i = 0; i < 100; ++i) {
                      Raise(Note(std::to_string(i)));
                  }
                  EXPECT_EQ(released.wait_for(10s), std::future_status::ready);
                  return kSuccess;
              }),
              kSuccess);
    ASSERT_THAT(m_heard, SizeIs(100));
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(m_heard[static_cast<std::size_t>(i)], std::to_string(i));
    }
}

TEST_F(WorkerEventsTest, EventRaisedOnOurThreadIsDeliveredAtOnce) {
    Raise(Note("direct"));
    EXPECT_THAT(m_heard, ElementsAre("direct"));
}

TEST_F(WorkerEventsTest, HandlerThatCallsTheDeviceEndsBeforeTheNextEvent) {
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

TEST_F(WorkerEventsTest, DescriptionOutlivesTheHandlersOfTheCallsEvents) {
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

}
