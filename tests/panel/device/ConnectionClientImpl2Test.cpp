// The connection of the panel; the hooks and what events mean are in
// ConnectionClientImpl2EventsTest.cpp.

#include "panel/device/ConnectionClientImpl2.h"

#include "tests/support/PanelFixture.h"

#include <ostream>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kNone = 0xFEFEFEFE;

class ConnectionClientImpl2Test : public PanelFixture {
protected:
    void SetUp() override {
        StartView();
        TakeCalls();
    }
    void TearDown() override {
        connection.reset();
        other.reset();
        PanelFixture::TearDown();
    }
    Status SetConnection(const std::shared_ptr<contract::IConnection>& next) {
        return panel->SetConnection(next);
    }

    CHost otherHost{{.areApplied = false}};
    std::shared_ptr<contract::IConnection> connection = interception.Wrap(host.Connection());
    std::shared_ptr<contract::IConnection> other = interception.Wrap(otherHost.Connection());
};

TEST_F(ConnectionClientImpl2Test, AttachAsksForTheStateThenSubscribes) {
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    EXPECT_THAT(TakeCalls(),
                ElementsAre("Connection.QueryConnectionState", "Connection.QueryBaseObject",
                            "ExtConnectionEvents.FindEventSource",
                            "ExtConnectionEvents.Subscribe"));
    EXPECT_NE(panel->ConnectionCookie(), kNone);
    EXPECT_EQ(host.ConnectionSubscriberCount(), 1u);
}

TEST_F(ConnectionClientImpl2Test, NewPanelHasTheCookieOfNone) {
    EXPECT_EQ(panel->ConnectionCookie(), kNone);
}

TEST_F(ConnectionClientImpl2Test, ConnectionAlreadyHeldChangesNothing) {
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    const std::uint32_t cookie = panel->ConnectionCookie();
    TakeCalls();
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_EQ(panel->ConnectionCookie(), cookie);
}

TEST_F(ConnectionClientImpl2Test, NullDetachesAndReleases) {
    const auto references = connection.use_count();
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    TakeCalls();
    EXPECT_EQ(SetConnection(nullptr), contract::kSuccess);
    EXPECT_THAT(TakeCalls(),
                ElementsAre("Connection.QueryBaseObject", "ExtConnectionEvents.FindEventSource",
                            "ExtConnectionEvents.Unsubscribe"));
    EXPECT_EQ(panel->ConnectionCookie(), kNone);
    EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
    EXPECT_EQ(connection.use_count(), references);
}

TEST_F(ConnectionClientImpl2Test, NullWithoutConnectionDoesNothing) {
    EXPECT_EQ(SetConnection(nullptr), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(ConnectionClientImpl2Test, AnotherConnectionReplacesTheFirst) {
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    TakeCalls();
    EXPECT_EQ(SetConnection(other), contract::kSuccess);
    EXPECT_THAT(TakeCalls(),
                ElementsAre("Connection.QueryBaseObject", "ExtConnectionEvents.FindEventSource",
                            "ExtConnectionEvents.Unsubscribe", "Connection.QueryConnectionState",
                            "Connection.QueryBaseObject", "ExtConnectionEvents.FindEventSource",
                            "ExtConnectionEvents.Subscribe"));
    EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
    EXPECT_EQ(otherHost.ConnectionSubscriberCount(), 1u);
}

TEST_F(ConnectionClientImpl2Test, StateIsAskedOfTheLatestConnection) {
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    EXPECT_EQ(SetConnection(other), contract::kSuccess);
    EXPECT_EQ(panel->SetSubsystemAccess(interception.Wrap(host.SubsystemAccess())),
              contract::kSuccess);
    host.InsertDevice(CDevice::Create(HealthyDevice(kKrx20)));
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_EQ(RowCount(), 0);
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_EQ(RowCount(), 3);
}

TEST_F(ConnectionClientImpl2Test, DetachedConnectionStaysDetachedWhenUnsubscribingFails) {
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    faults->Fail({1, "ExtConnectionEvents.Unsubscribe"});
    EXPECT_EQ(SetConnection(nullptr), contract::kSuccess);
    EXPECT_EQ(faults->Fired(), 1u);
    EXPECT_EQ(panel->ConnectionCookie(), kNone);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    TakeCalls();
    EXPECT_EQ(SetConnection(nullptr), contract::kSuccess);
    panel.reset();
    EXPECT_THAT(TakeCalls(), ElementsAre("Context.Unregister"));
}

struct FailingStep {
    const char* operation;
    bool deliversNull;

    friend std::ostream& operator<<(std::ostream& out, const FailingStep& step) {
        return out << step.operation << (step.deliversNull ? " delivers null" : " fails");
    }
};

class UnsubscribedConnectionTest : public ConnectionClientImpl2Test,
                                   public testing::WithParamInterface<FailingStep> {
protected:
    void SetUp() override {
        ConnectionClientImpl2Test::SetUp();
        if (GetParam().deliversNull) {
            faults->DeliverNull({1, GetParam().operation});
        } else {
            faults->Fail({1, GetParam().operation}, {.description = "no events today"});
        }
        EXPECT_EQ(SetConnection(connection), contract::kSuccess);
        EXPECT_EQ(faults->Fired(), 1u);
    }
};

TEST_P(UnsubscribedConnectionTest, FailureStaysSilentAndLeavesTheCookieOfNone) {
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_EQ(panel->ConnectionCookie(), kNone);
    EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
}

TEST_P(UnsubscribedConnectionTest, ConnectionIsHeldAllTheSame) {
    TakeCalls();
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), ElementsAre("ConnectionState.IsConnected"));
}

TEST_P(UnsubscribedConnectionTest, EndTriesToUnsubscribeByTheCookieOfNone) {
    TakeCalls();
    connection.reset();
    other.reset();
    EndPanel();
    EXPECT_THAT(TakeCalls(),
                ElementsAre("Connection.QueryBaseObject", "ExtConnectionEvents.FindEventSource",
                            "ExtConnectionEvents.Unsubscribe", "Context.Unregister"));
}

TEST_P(UnsubscribedConnectionTest, DescriptionLeftBehindAppearsInNoLaterReport) {
    EXPECT_EQ(panel->SetSubsystemAccess(nullptr), Status::FromBits(0x80004003));
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Connecting to KxProgrammingDevice subsystem failed",
                                        "SetSubsystemAccess", Status::FromBits(0x80004003), "")));
}

INSTANTIATE_TEST_SUITE_P(Steps, UnsubscribedConnectionTest,
                         testing::Values(FailingStep{"Connection.QueryBaseObject", false},
                                         FailingStep{"Connection.QueryBaseObject", true},
                                         FailingStep{"ExtConnectionEvents.FindEventSource", false},
                                         FailingStep{"ExtConnectionEvents.FindEventSource", true},
                                         FailingStep{"ExtConnectionEvents.Subscribe", false}));

TEST_F(ConnectionClientImpl2Test, ConnectionWithoutStateStillDeliversEvents) {
    faults->DeliverNull({1, "Connection.QueryConnectionState"});
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    EXPECT_EQ(panel->SetSubsystemAccess(interception.Wrap(host.SubsystemAccess())),
              contract::kSuccess);
    TakeCalls();
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    ConnectDevice(kKrx20);
    EXPECT_EQ(RowCount(), 3);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(ConnectionClientImpl2Test, EventRaisedWithinTheSubscriptionIsHandled) {
    EXPECT_EQ(panel->SetSubsystemAccess(interception.Wrap(host.SubsystemAccess())),
              contract::kSuccess);
    host.InsertDevice(CDevice::Create(HealthyDevice(kKrx20)));
    faults->RunAfter({1, "ExtConnectionEvents.Subscribe"}, [this] { RaiseState(7); });
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    EXPECT_EQ(RowCount(), 3);
}

// A host that steps in while it is being attached or detached

TEST_F(ConnectionClientImpl2Test, ConnectionTakenAwayWhileItIsAskedIsNotSubscribedTo) {
    faults->RunBefore({1, "Connection.QueryConnectionState"},
                      [this] { EXPECT_EQ(SetConnection(nullptr), contract::kSuccess); });
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    EXPECT_EQ(faults->Calls("ExtConnectionEvents.Subscribe"), 0u);
    EXPECT_EQ(panel->ConnectionCookie(), kNone);
    TakeCalls();
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(ConnectionClientImpl2Test, ConnectionTakenAwayWhileSubscribingIsUnsubscribed) {
    faults->RunAfter({1, "ExtConnectionEvents.Subscribe"},
                     [this] { EXPECT_EQ(SetConnection(nullptr), contract::kSuccess); });
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    EXPECT_EQ(panel->ConnectionCookie(), kNone);
    EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
}

TEST_F(ConnectionClientImpl2Test, ConnectionReplacedWhileItIsAttachedGivesWay) {
    for (const char* operation :
         {"Connection.QueryConnectionState", "ExtConnectionEvents.Subscribe"}) {
        SCOPED_TRACE(operation);
        faults->Clear();
        faults->RunBefore({1, operation},
                          [this] { EXPECT_EQ(SetConnection(other), contract::kSuccess); });
        EXPECT_EQ(SetConnection(connection), contract::kSuccess);
        EXPECT_EQ(faults->Fired(), 1u);
        EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
        EXPECT_EQ(otherHost.ConnectionSubscriberCount(), 1u);
        EXPECT_EQ(SetConnection(nullptr), contract::kSuccess);
        EXPECT_EQ(otherHost.ConnectionSubscriberCount(), 0u);
    }
}

TEST_F(ConnectionClientImpl2Test, ConnectionSetWhileTheOldOneIsDetachedStays) {
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    faults->RunBefore({1, "ExtConnectionEvents.Unsubscribe"},
                      [this] { EXPECT_EQ(SetConnection(other), contract::kSuccess); });
    EXPECT_EQ(SetConnection(nullptr), contract::kSuccess);
    EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
    EXPECT_EQ(otherHost.ConnectionSubscriberCount(), 1u);
    EXPECT_NE(panel->ConnectionCookie(), kNone);
}

TEST_F(ConnectionClientImpl2Test, ConnectionSetWhileTheOldOneIsDetachedKeepsOutTheNext) {
    CHost lastHost({.areApplied = false});
    EXPECT_EQ(SetConnection(connection), contract::kSuccess);
    faults->RunBefore({1, "ExtConnectionEvents.Unsubscribe"},
                      [this] { EXPECT_EQ(SetConnection(other), contract::kSuccess); });
    EXPECT_EQ(SetConnection(lastHost.Connection()), contract::kSuccess);
    EXPECT_EQ(lastHost.ConnectionSubscriberCount(), 0u);
    EXPECT_EQ(otherHost.ConnectionSubscriberCount(), 1u);
    EXPECT_EQ(SetConnection(nullptr), contract::kSuccess);
    EXPECT_EQ(otherHost.ConnectionSubscriberCount(), 0u);
}

}
