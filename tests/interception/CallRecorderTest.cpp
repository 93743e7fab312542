#include "interception/CallRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace interception {

namespace {

using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Operation kOuter{"FileListing.GetFileCount", Delivers::Value};
constexpr Operation kInner{"FileInfo.GetName", Delivers::Value};
constexpr Operation kEvent{"ProgrammingDeviceControlEvents.ModeChanged", Delivers::Nothing};

class CallRecorderTest : public testing::Test {
protected:
    CCallRecorder m_recorder;
};

TEST_F(CallRecorderTest, CallIsMadeAndWrittenDown) {
    EXPECT_EQ(m_recorder.Call(kOuter, [] { return Status(-3); }), Status(-3));
    EXPECT_THAT(m_recorder.Calls(), ElementsAre("FileListing.GetFileCount"));
    EXPECT_THAT(m_recorder.Events(), IsEmpty());
}

TEST_F(CallRecorderTest, NestedCallStandsAfterTheOuterOne) {
    const auto callInner = [this] { return m_recorder.Call(kInner, [] { return Status(4); }); };
    EXPECT_EQ(m_recorder.Call(kOuter, callInner), Status(4));
    EXPECT_THAT(m_recorder.Calls(), ElementsAre("FileListing.GetFileCount", "FileInfo.GetName"));
}

TEST_F(CallRecorderTest, EventIsDeliveredAndListedApart) {
    EXPECT_EQ(m_recorder.Deliver(kEvent, [] { return Status(6); }), Status(6));
    EXPECT_THAT(m_recorder.Events(), ElementsAre("ProgrammingDeviceControlEvents.ModeChanged"));
    EXPECT_THAT(m_recorder.Calls(), IsEmpty());
}

TEST_F(CallRecorderTest, ClearForgetsCallsAndEvents) {
    (void)m_recorder.Call(kOuter, [] { return Status(); });
    (void)m_recorder.Deliver(kEvent, [] { return Status(); });
    m_recorder.Clear();
    EXPECT_THAT(m_recorder.Calls(), IsEmpty());
    EXPECT_THAT(m_recorder.Events(), IsEmpty());
}

}

}
