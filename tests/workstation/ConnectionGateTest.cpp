#include "workstation/ConnectionGate.h"

#include "tests/workstation/Until.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace {

using contract::kSuccess;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;
using workstation::CConnectionGate;

constexpr interception::Operation kStateEvent{"ExtConnectionEvents.ConnectionStateChanged",
                                              interception::Delivers::Nothing,
                                              interception::Provider::Host};

class ConnectionGateTest : public testing::Test {
protected:
    void Raise(const std::string& name) {
        EXPECT_EQ(m_gate.Deliver(kStateEvent, [this, name] { return Note(name); }), kSuccess);
    }
    Status Note(const std::string& name) {
        m_done.push_back(name);
        return kSuccess;
    }

    bool m_isPanelBusy = false;
    std::vector<std::string> m_done;
    CConnectionGate m_gate{[this] { return m_isPanelBusy; }};
};

TEST_F(ConnectionGateTest, ActionWhileIdleIsDoneAtOnce) {
    m_gate.RunWhenIdle([this] { static_cast<void>(Note("action")); });
    EXPECT_THAT(m_done, ElementsAre("action"));
    EXPECT_TRUE(m_gate.IsIdle());
}

TEST_F(ConnectionGateTest, StateWhilePanelIsBusyWaitsForItsEnd) {
    m_isPanelBusy = true;
    Raise("gone");
    Raise("ready");
    EXPECT_THAT(m_done, IsEmpty());
    EXPECT_FALSE(m_gate.IsIdle());
    m_isPanelBusy = false;
    EXPECT_FALSE(m_gate.IsIdle()) << "something waits";
    ASSERT_TRUE(Until([this] { return m_done.size() == 2; }));
    EXPECT_THAT(m_done, ElementsAre("gone", "ready"));
    EXPECT_TRUE(m_gate.IsIdle());
}

TEST_F(ConnectionGateTest, StateRaisedByActionIsDeliveredInside) {
    m_gate.RunWhenIdle([this] {
        Raise("gone");
        static_cast<void>(Note("swapped"));
        Raise("ready");
    });
    EXPECT_THAT(m_done, ElementsAre("gone", "swapped", "ready"));
}

TEST_F(ConnectionGateTest, StateRaisedInsideADeliveryWaitsForTheAction) {
    m_gate.RunWhenIdle([this] {
        static_cast<void>(m_gate.Deliver(kStateEvent, [this] {
            Raise("gone during the refresh");
            return Note("refreshed");
        }));
        static_cast<void>(Note("action ended"));
    });
    EXPECT_THAT(m_done, ElementsAre("refreshed", "action ended", "gone during the refresh"));
}

TEST_F(ConnectionGateTest, ActionInsideAnActionWaits) {
    m_gate.RunWhenIdle([this] {
        m_gate.RunWhenIdle([this] { static_cast<void>(Note("inner")); });
        static_cast<void>(Note("outer"));
    });
    EXPECT_THAT(m_done, ElementsAre("outer", "inner"));
}

TEST_F(ConnectionGateTest, StateFromAnotherThreadArrivesOnOurs) {
    std::thread::id deliveredOn;
    std::thread([&] {
        static_cast<void>(m_gate.Deliver(kStateEvent, [&] {
            deliveredOn = std::this_thread::get_id();
            return Note("gone");
        }));
    }).join();
    EXPECT_THAT(m_done, IsEmpty());
    ASSERT_TRUE(Until([this] { return !m_done.empty(); }));
    EXPECT_EQ(deliveredOn, std::this_thread::get_id());
}

TEST_F(ConnectionGateTest, CallPassesWithItsStatus) {
    m_isPanelBusy = true;
    constexpr interception::Operation kIsConnected{
        "ConnectionState.IsConnected", interception::Delivers::Value, interception::Provider::Host};
    EXPECT_EQ(m_gate.Call(kIsConnected,
                          [this] {
                              static_cast<void>(Note("call"));
                              return contract::kUnspecifiedFailure;
                          }),
              contract::kUnspecifiedFailure);
    EXPECT_THAT(m_done, ElementsAre("call"));
}

}
