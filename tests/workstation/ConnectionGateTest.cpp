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
    void Do(CConnectionGate::Action action) { m_gate.RunWhenIdle(std::move(action)); }
    bool UntilDone(std::size_t count) {
        return Until([&] { return m_done.size() >= count; });
    }

    bool m_isPanelBusy = false;
    std::vector<std::string> m_done;
    CConnectionGate m_gate{[this] { return m_isPanelBusy; }};
};

TEST_F(ConnectionGateTest, ActionIsDoneFromTheEventLoop) {
    Do([this] { static_cast<void>(Note("action")); });
    EXPECT_THAT(m_done, IsEmpty());
    EXPECT_FALSE(m_gate.IsIdle());
    ASSERT_TRUE(UntilDone(1));
    EXPECT_TRUE(m_gate.IsIdle());
}

TEST_F(ConnectionGateTest, StateWhilePanelIsBusyWaitsForItsEnd) {
    m_isPanelBusy = true;
    Raise("gone");
    Raise("ready");
    QCoreApplication::processEvents();
    EXPECT_THAT(m_done, IsEmpty());
    m_isPanelBusy = false;
    ASSERT_TRUE(UntilDone(2));
    EXPECT_THAT(m_done, ElementsAre("gone", "ready"));
    EXPECT_TRUE(m_gate.IsIdle());
}

TEST_F(ConnectionGateTest, StatesOfAnOpeningPassAtOnce) {
    Do([this] {
        {
            const CConnectionGate::COpening opening(m_gate);
            Raise("gone");
            Raise("gone, second subscriber");
        }
        static_cast<void>(Note("swapped"));
        Raise("held back");
        static_cast<void>(Note("action ended"));
    });
    ASSERT_TRUE(UntilDone(5));
    EXPECT_THAT(m_done, ElementsAre("gone", "gone, second subscriber", "swapped", "action ended",
                                    "held back"));
}

TEST_F(ConnectionGateTest, StateRaisedInsideADeliveryWaitsForTheAction) {
    Do([this] {
        const CConnectionGate::COpening opening(m_gate);
        EXPECT_EQ(m_gate.Deliver(kStateEvent,
                                 [this] {
                                     Raise("gone during the refresh");
                                     return Note("refreshed");
                                 }),
                  kSuccess);
        static_cast<void>(Note("action ended"));
    });
    ASSERT_TRUE(UntilDone(3));
    EXPECT_THAT(m_done, ElementsAre("refreshed", "action ended", "gone during the refresh"));
}

TEST_F(ConnectionGateTest, ActionInsideAnActionWaitsAlsoForItsEventLoop) {
    Do([this] {
        Do([this] { static_cast<void>(Note("inner")); });
        QCoreApplication::processEvents();
        EXPECT_FALSE(m_gate.IsIdle());
        static_cast<void>(Note("outer"));
    });
    ASSERT_TRUE(UntilDone(2));
    EXPECT_THAT(m_done, ElementsAre("outer", "inner"));
}

TEST_F(ConnectionGateTest, StateFromAnotherThreadArrivesOnOurs) {
    std::thread::id deliveredOn;
    std::thread([&] {
        EXPECT_EQ(m_gate.Deliver(kStateEvent,
                                 [&] {
                                     deliveredOn = std::this_thread::get_id();
                                     return Note("gone");
                                 }),
                  kSuccess);
    }).join();
    EXPECT_THAT(m_done, IsEmpty());
    ASSERT_TRUE(UntilDone(1));
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
