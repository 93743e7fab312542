// The panel released by its host from inside a call.

#include "panel/control/KRX8Maintenance.h"

#include "frontend/headless/HeadlessToolkit.h"
#include "tests/support/PanelFixture.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::Contains;
using testing::ElementsAre;

constexpr const char* kFindConnectionEvents[] = {"Connection.QueryBaseObject",
                                                 "ExtConnectionEvents.FindEventSource"};

class KRX8MaintenanceReleaseTest : public PanelFixture {
protected:
    void InsertDevice() { host.InsertDevice(CDevice::Create(HealthyDevice(kKrx20))); }

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

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWithinARefreshLetsItFinish) {
    StartPanel();
    InsertDevice();
    ReleaseWithin("HardwareInfo.GetDeviceType");
    RaiseState(7);
    ExpectReleased();
    const auto calls = TakeCalls();
    EXPECT_THAT(calls, Contains("FileInfo.GetGeneration"));
    EXPECT_EQ(calls.back(), "Context.Unregister");
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWithinTheStartSignalLetsItFinish) {
    StartPanel();
    InsertDevice();
    ReleaseWithin("ConnectionState.IsConnected");
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    ExpectReleased();
    EXPECT_THAT(TakeCalls(), Contains("FileInfo.GetGeneration"));
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWithinTheCloseCommandIsSafe) {
    StartPanel();
    ConnectDevice(kKrx20);
    ReleaseWithin("HostViewControl.ClosePanel");
    PressButton(230);
    ExpectReleased();
    EXPECT_EQ(viewControl->closeRequests, 1);
}

TEST_F(KRX8MaintenanceReleaseTest, HostMayDestroyTheViewWithinTheCloseCommand) {
    StartPanel();
    viewControl->onClose = [this] {
        panel->DestroyView();
        Release();
    };
    EXPECT_TRUE(PressButton(230));
    ExpectReleased();
    EXPECT_EQ(viewControl->closeRequests, 1);
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWhileAMessageIsOpenLetsTheRefreshFinish) {
    StartPanel();
    DeviceDescription device = HealthyDevice(kKrx20);
    device.mode = kServiceMode;
    messageService->whileOpen = [this] { Release(); };
    ConnectDevice(device);
    EXPECT_EQ(TakeMessages().size(), 1u);
    ExpectReleased();
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWithinTheDetailsDialogIsSafe) {
    StartPanel();
    DeviceDescription device = HealthyDevice(kKrx20);
    device.selfTests[contract::SelfTest::Ethernet] = 5;
    ConnectDevice(device);
    desktop->prompts.AnswerDialog([this](headless::CHeadlessView&) { Release(); });
    PressButton(222);
    ExpectReleased();
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWithinTheRegistrationIsSafe) {
    ReleaseWithin("Context.Register");
    EXPECT_EQ(panel->SetContextAndRegister(interception.Wrap(host.Context())), contract::kSuccess);
    ExpectReleased();
    EXPECT_THAT(TakeCalls(), ElementsAre("Context.Register", "Context.Unregister"));
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWhileChangingTheContextIsSafe) {
    const CHost next({.areApplied = false});
    StartView();
    ReleaseWithin("Context.Unregister");
    EXPECT_EQ(panel->SetContextAndRegister(interception.Wrap(next.Context())), contract::kSuccess);
    ExpectReleased();
    EXPECT_EQ(next.ContextMemberCount(), 0u);
    EXPECT_THAT(TakeCalls(),
                ElementsAre("Context.Unregister", "Context.Register", "Context.Unregister"));
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWhileLeavingTheContextIsSafe) {
    const CHost next({.areApplied = false});
    StartView();
    ReleaseWithin("Context.Unregister");
    EXPECT_EQ(panel->SetContext(interception.Wrap(next.Context())), contract::kSuccess);
    ExpectReleased();
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWithinTheViewsCreationIsSafe) {
    ASSERT_EQ(panel->SetContextAndRegister(interception.Wrap(host.Context())), contract::kSuccess);
    ReleaseWithin("Context.QueryHostViewControl");
    EXPECT_EQ(panel->CreateView(nullptr), contract::kSuccess);
    ExpectReleased();
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWhileConnectingToTheSubsystemIsSafe) {
    StartView();
    ReleaseWithin("ProgrammingDeviceControlEvents.Subscribe");
    EXPECT_EQ(panel->SetSubsystemAccess(interception.Wrap(host.SubsystemAccess())),
              contract::kSuccess);
    ExpectReleased();
    EXPECT_EQ(TakeCalls().back(), "Context.Unregister");
}

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWhileAttachingTheConnectionIsSafe) {
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

TEST_F(KRX8MaintenanceReleaseTest, ReleaseWhileDetachingTheConnectionIsSafe) {
    StartPanel();
    ReleaseWithin("ExtConnectionEvents.Unsubscribe");
    EXPECT_EQ(panel->SetConnection(nullptr), contract::kSuccess);
    ExpectReleased();
    EXPECT_EQ(faults->Calls("ExtConnectionEvents.Unsubscribe"), 1u);
}

}
