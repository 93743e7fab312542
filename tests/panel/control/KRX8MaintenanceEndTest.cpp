// How the panel ends: of what it lets go, and that it may be released from inside any call.

#include "panel/control/KRX8Maintenance.h"

#include "frontend/headless/HeadlessToolkit.h"
#include "tests/support/PanelFixture.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class KRX8MaintenanceEndTest : public PanelFixture {
protected:
    void InsertDevice() { host.InsertDevice(CDevice::Create(HealthyDevice(kKrx20))); }
};

constexpr const char* kFindConnectionEvents[] = {"Connection.QueryBaseObject",
                                                 "ExtConnectionEvents.FindEventSource"};

TEST_F(KRX8MaintenanceEndTest, EndLetsGoOfConnectionDeviceAndContextInThatOrder) {
    StartPanel();
    TakeCalls();
    EndPanel();
    EXPECT_THAT(TakeCalls(),
                ElementsAre(kFindConnectionEvents[0], kFindConnectionEvents[1],
                            "ExtConnectionEvents.Unsubscribe",
                            "ProgrammingDeviceControl.QueryBaseObject",
                            "ProgrammingDeviceControlEvents.FindEventSource",
                            "ProgrammingDeviceControlEvents.Unsubscribe", "Context.Unregister"));
}

TEST_F(KRX8MaintenanceEndTest, EndOfAFreshPanelCallsNothing) {
    EndPanel();
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(KRX8MaintenanceEndTest, EndWithoutConnectionOrControlOnlyUnregisters) {
    StartView();
    TakeCalls();
    EndPanel();
    EXPECT_THAT(TakeCalls(), ElementsAre("Context.Unregister"));
}

TEST_F(KRX8MaintenanceEndTest, EndAfterDetachingLeavesTheConnectionAlone) {
    StartPanel();
    ASSERT_EQ(panel->SetConnection(nullptr), contract::kSuccess);
    TakeCalls();
    EndPanel();
    EXPECT_EQ(TakeCalls().front(), "ProgrammingDeviceControl.QueryBaseObject");
}

TEST_F(KRX8MaintenanceEndTest, EndDestroysAViewThatIsStillThere) {
    StartPanel();
    panel.reset();
    EXPECT_EQ(desktop->windows.PanelView(), nullptr);
    EXPECT_EQ(interception.LiveWrappers(), 0u);
}

TEST_F(KRX8MaintenanceEndTest, EndGoesOnWhenEveryStepFails) {
    StartPanel();
    faults->Clear();
    faults->Fail({1, "ExtConnectionEvents.Unsubscribe"});
    faults->Fail({1, "ProgrammingDeviceControlEvents.Unsubscribe"});
    faults->Fail({1, "Context.Unregister"});
    panel.reset();
    EXPECT_EQ(faults->Fired(), 3u);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(KRX8MaintenanceEndTest, EventsOfThePanelsEndReachNobody) {
    StartPanel();
    InsertDevice();
    faults->Clear();
    faults->RunBefore({1, "ExtConnectionEvents.Unsubscribe"}, [this] { RaiseState(7); });
    faults->RunBefore({1, "ProgrammingDeviceControlEvents.Unsubscribe"},
                      [this] { host.Device()->RaiseMode(2); });
    TakeCalls();
    panel.reset();
    EXPECT_EQ(faults->Fired(), 2u);
    EXPECT_EQ(TakeCalls().size(), 7u);
}

// Released from inside

class ReleasedInsideTest : public KRX8MaintenanceEndTest {
protected:
    /// What a host does that releases its last reference while the panel is at work.
    void Release() {
        const std::weak_ptr<CKRX8Maintenance> watched = panel;
        panel.reset();
        livedOn = !watched.expired();
    }
    void ReleaseWithin(const std::string& operation) {
        faults->Clear();
        faults->RunBefore({1, operation}, [this] { Release(); });
        TakeCalls();
    }
    void ExpectReleased() {
        EXPECT_TRUE(livedOn);
        EXPECT_EQ(panel, nullptr);
        EXPECT_EQ(desktop->windows.PanelView(), nullptr);
        EXPECT_EQ(desktop->cursorDepth, 0);
        EXPECT_EQ(host.DeviceSubscriberCount(), 0u);
        EXPECT_EQ(host.ConnectionSubscriberCount(), 0u);
        EXPECT_EQ(host.ContextMemberCount(), 0u);
        EXPECT_EQ(interception.LiveWrappers(), 0u);
    }

    /// Whether the panel was still there once it had been released.
    bool livedOn = false;
};

TEST_F(ReleasedInsideTest, ReleaseWithinARefreshLetsItFinish) {
    StartPanel();
    InsertDevice();
    ReleaseWithin("HardwareInfo.GetDeviceType");
    RaiseState(7);
    ExpectReleased();
    const auto calls = TakeCalls();
    EXPECT_THAT(calls, Contains("FileInfo.GetGeneration"));
    EXPECT_EQ(calls.back(), "Context.Unregister");
}

TEST_F(ReleasedInsideTest, ReleaseWithinTheStartSignalLetsItFinish) {
    StartPanel();
    InsertDevice();
    ReleaseWithin("ConnectionState.IsConnected");
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    ExpectReleased();
    EXPECT_THAT(TakeCalls(), Contains("FileInfo.GetGeneration"));
}

TEST_F(ReleasedInsideTest, ReleaseWithinTheCloseCommandIsSafe) {
    StartPanel();
    ConnectDevice(kKrx20);
    ReleaseWithin("HostViewControl.ClosePanel");
    PressButton(230);
    ExpectReleased();
    EXPECT_EQ(viewControl->closeRequests, 1);
}

TEST_F(ReleasedInsideTest, HostMayDestroyTheViewWithinTheCloseCommand) {
    StartPanel();
    viewControl->onClose = [this] {
        panel->DestroyView();
        Release();
    };
    EXPECT_TRUE(PressButton(230));
    ExpectReleased();
    EXPECT_EQ(viewControl->closeRequests, 1);
}

TEST_F(ReleasedInsideTest, ReleaseWhileAMessageIsOpenLetsTheRefreshFinish) {
    StartPanel();
    DeviceDescription device = HealthyDevice(kKrx20);
    device.mode = kServiceMode;
    messageService->whileOpen = [this] { Release(); };
    ConnectDevice(device);
    EXPECT_EQ(TakeMessages().size(), 1u);
    ExpectReleased();
}

TEST_F(ReleasedInsideTest, ReleaseWithinTheDetailsDialogIsSafe) {
    StartPanel();
    DeviceDescription device = HealthyDevice(kKrx20);
    device.selfTests[contract::SelfTest::Ethernet] = 5;
    ConnectDevice(device);
    desktop->prompts.AnswerDialog([this](headless::CHeadlessView&) { Release(); });
    PressButton(222);
    ExpectReleased();
}

TEST_F(ReleasedInsideTest, ReleaseWithinTheRegistrationIsSafe) {
    ReleaseWithin("Context.Register");
    EXPECT_EQ(panel->SetContextAndRegister(interception.Wrap(host.Context())), contract::kSuccess);
    ExpectReleased();
    EXPECT_THAT(TakeCalls(), ElementsAre("Context.Register", "Context.Unregister"));
}

TEST_F(ReleasedInsideTest, ReleaseWhileChangingTheContextIsSafe) {
    const CHost next({.areApplied = false});
    StartView();
    ReleaseWithin("Context.Unregister");
    EXPECT_EQ(panel->SetContextAndRegister(interception.Wrap(next.Context())), contract::kSuccess);
    ExpectReleased();
    EXPECT_EQ(next.ContextMemberCount(), 0u);
    EXPECT_THAT(TakeCalls(),
                ElementsAre("Context.Unregister", "Context.Register", "Context.Unregister"));
}

TEST_F(ReleasedInsideTest, ReleaseWhileLeavingTheContextIsSafe) {
    const CHost next({.areApplied = false});
    StartView();
    ReleaseWithin("Context.Unregister");
    EXPECT_EQ(panel->SetContext(interception.Wrap(next.Context())), contract::kSuccess);
    ExpectReleased();
}

TEST_F(ReleasedInsideTest, ReleaseWithinTheViewsCreationIsSafe) {
    ASSERT_EQ(panel->SetContextAndRegister(interception.Wrap(host.Context())), contract::kSuccess);
    ReleaseWithin("Context.QueryHostViewControl");
    EXPECT_EQ(panel->CreateView(nullptr), contract::kSuccess);
    ExpectReleased();
}

TEST_F(ReleasedInsideTest, ReleaseWhileConnectingToTheSubsystemIsSafe) {
    StartView();
    ReleaseWithin("ProgrammingDeviceControlEvents.Subscribe");
    EXPECT_EQ(panel->SetSubsystemAccess(interception.Wrap(host.SubsystemAccess())),
              contract::kSuccess);
    ExpectReleased();
    EXPECT_EQ(TakeCalls().back(), "Context.Unregister");
}

TEST_F(ReleasedInsideTest, ReleaseWhileAttachingTheConnectionIsSafe) {
    for (const char* operation :
         {"Connection.QueryConnectionState", "ExtConnectionEvents.Subscribe"}) {
        SCOPED_TRACE(operation);
        panel =
            panel::CKRX8Maintenance::Create(std::make_unique<headless::CHeadlessToolkit>(desktop));
        ReleaseWithin(operation);
        EXPECT_EQ(panel->SetConnection(interception.Wrap(host.Connection())), contract::kSuccess);
        ExpectReleased();
        EXPECT_THAT(TakeCalls(),
                    ElementsAre("Connection.QueryConnectionState", kFindConnectionEvents[0],
                                kFindConnectionEvents[1], "ExtConnectionEvents.Subscribe",
                                kFindConnectionEvents[0], kFindConnectionEvents[1],
                                "ExtConnectionEvents.Unsubscribe"));
    }
}

TEST_F(ReleasedInsideTest, ReleaseWhileDetachingTheConnectionIsSafe) {
    StartPanel();
    ReleaseWithin("ExtConnectionEvents.Unsubscribe");
    EXPECT_EQ(panel->SetConnection(nullptr), contract::kSuccess);
    ExpectReleased();
    EXPECT_EQ(faults->Calls("ExtConnectionEvents.Unsubscribe"), 1u);
}

}
