#include "interception/Latency.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace interception {

namespace {

using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

constexpr Operation kName{"FileInfo.GetName", Delivers::Value};
constexpr Operation kSize{"FileInfo.GetSize", Delivers::Value};
constexpr Operation kEvent{"ProgrammingDeviceControlEvents.ModeChanged", Delivers::Nothing};

class LatencyTest : public testing::Test {
protected:
    Status Call(const Operation& operation) {
        return m_latency.Call(operation, [this] {
            m_sleepsBeforeCall = m_slept.size();
            return Status(3);
        });
    }

    std::vector<CLatency::Duration> m_slept;
    std::size_t m_sleepsBeforeCall = 0;
    CLatency m_latency{[this](CLatency::Duration duration) { m_slept.push_back(duration); }};
};

TEST_F(LatencyTest, NothingSetCallsAtOnce) {
    EXPECT_EQ(Call(kName), Status(3));
    EXPECT_THAT(m_slept, IsEmpty());
}

TEST_F(LatencyTest, DefaultDelaysEveryOperationBeforeItRuns) {
    m_latency.SetDefault(20ms);
    EXPECT_EQ(Call(kName), Status(3));
    EXPECT_EQ(m_sleepsBeforeCall, 1u);
    EXPECT_EQ(Call(kSize), Status(3));
    EXPECT_THAT(m_slept, ElementsAre(20ms, 20ms));
}

TEST_F(LatencyTest, OwnTimeReplacesTheDefault) {
    m_latency.SetDefault(20ms);
    m_latency.Set("FileInfo.GetName", 5ms);
    (void)Call(kName);
    (void)Call(kSize);
    EXPECT_THAT(m_slept, ElementsAre(5ms, 20ms));
}

TEST_F(LatencyTest, OwnTimeOfZeroExemptsTheOperation) {
    m_latency.SetDefault(20ms);
    m_latency.Set("FileInfo.GetName", 0ms);
    (void)Call(kName);
    EXPECT_THAT(m_slept, IsEmpty());
}

TEST_F(LatencyTest, EventPassesAtOnce) {
    m_latency.SetDefault(20ms);
    EXPECT_EQ(m_latency.Deliver(kEvent, [] { return Status(4); }), Status(4));
    EXPECT_THAT(m_slept, IsEmpty());
}

TEST_F(LatencyTest, UnknownOperationThrows) {
    EXPECT_THROW(m_latency.Set("FileInfo.GetColour", 5ms), std::invalid_argument);
}

TEST(LatencyOnThisThreadTest, WaitLastsAtLeastItsTime) {
    const auto start = std::chrono::steady_clock::now();
    CLatency::WaitOnThisThread(2ms);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 2ms);
}

}

}
