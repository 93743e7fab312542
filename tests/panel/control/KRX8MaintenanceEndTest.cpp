// How the panel ends: of what it lets go, and who is heard meanwhile. That it may be released from
// inside any call is in KRX8MaintenanceReleaseTest.cpp.

#include "panel/control/KRX8Maintenance.h"

#include "tests/support/PanelFixture.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class KRX8MaintenanceEndTest : public PanelFixture {
protected:
    void InsertDevice() { host.InsertDevice(CDevice::Create(HealthyDevice(kKrx20))); }

    static DeviceDescription DeviceWithFailedTest() {
        DeviceDescription device = HealthyDevice(kKrx20);
        device.selfTests[contract::SelfTest::Ethernet] = 5;
        return device;
    }

    void ExpectNobodyReached() {
        EXPECT_EQ(viewControl->closeRequests, 0);
        EXPECT_THAT(desktop->helps, IsEmpty());
        EXPECT_THAT(desktop->traceLines, IsEmpty());
        EXPECT_THAT(TakeMessages(), IsEmpty());
    }
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

// A front end that has something to tell to the last

void DoAllThatAUserCan(IDialogHandler& handler) {
    for (const ControlId button : {9, 222, 226, 227, 228, 229, 230, 246}) {
        handler.OnCommand(button);
    }
    handler.OnResized({1000, 700});
    handler.OnListKeyDown(224, 0x2E);
    handler.OnListRightClick(224, {5, 5});
    handler.OnHelp(0);
    handler.OnHelp(12);
}

TEST_F(KRX8MaintenanceEndTest, ViewIsGoneBeforeThePanelsEndCallsItsHost) {
    StartPanel();
    faults->Clear();
    for (std::size_t call = 1; call <= 7; ++call) {
        faults->RunBefore({call}, [this] { EXPECT_EQ(desktop->windows.PanelView(), nullptr); });
    }
    panel.reset();
    EXPECT_EQ(faults->Fired(), 7u);
}

TEST_F(KRX8MaintenanceEndTest, UserWithinThePanelsEndReachesNobody) {
    StartPanel();
    ConnectDevice(DeviceWithFailedTest());
    desktop->traceLines.clear();
    faults->Clear();
    // The connection is let go of first, while the panel is still a handler.
    faults->RunBefore({1}, [&handler = *panel] { DoAllThatAUserCan(handler); });
    TakeCalls();
    panel.reset();
    EXPECT_EQ(faults->Fired(), 1u);
    EXPECT_EQ(TakeCalls().size(), 7u);
    ExpectNobodyReached();
}

TEST_F(KRX8MaintenanceEndTest, UserWithinTheViewsEndReachesNobody) {
    StartPanel();
    ConnectDevice(DeviceWithFailedTest());
    desktop->traceLines.clear();
    int ends = 0;
    desktop->windows.whileClosing = [&] {
        ++ends;
        DoAllThatAUserCan(*panel);
    };
    TakeCalls();
    panel->DestroyView();
    desktop->windows.whileClosing = nullptr;
    EXPECT_EQ(ends, 1);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    ExpectNobodyReached();
}

TEST_F(KRX8MaintenanceEndTest, UserAfterTheViewsEndReachesNobody) {
    StartPanel();
    ConnectDevice(DeviceWithFailedTest());
    desktop->traceLines.clear();
    panel->DestroyView();
    TakeCalls();
    DoAllThatAUserCan(*panel);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    ExpectNobodyReached();
}

}
