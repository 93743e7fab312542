// The panel between host and device: start signal and connection states.

#include "panel/control/KRX8Maintenance.h"

#include "tests/support/PanelFixture.h"

#include <ostream>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class KRX8MaintenanceHostTest : public PanelFixture {
protected:
    /// A device that is there before the host's start signal.
    void InsertDevice(std::int32_t type) {
        host.InsertDevice(simulator::CDevice::Create(HealthyDevice(type)));
    }
    /// Starts the panel beside a device of which it has heard nothing.
    void StartPanelBesideADevice() {
        StartPanel();
        InsertDevice(kKrx20);
        TakeCalls();
    }
    std::size_t CallsOf(const std::string& operation) { return faults->Calls(operation); }
};

// The start signal

TEST_F(KRX8MaintenanceHostTest, StartSignalReadsTheDeviceThatIsThere) {
    StartPanelBesideADevice();
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_EQ(Field(201), "KRX-20 Info");
    EXPECT_EQ(RowCount(), 3);
    EXPECT_EQ(TakeCalls().front(), "ConnectionState.IsConnected");
}

TEST_F(KRX8MaintenanceHostTest, StartSignalKeepsTheLog) {
    StartPanelBesideADevice();
    panel->Output().AppendStatusLine("before");
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_EQ(Log().front(), "before");
}

TEST_F(KRX8MaintenanceHostTest, StartSignalWithoutDeviceDoesNothing) {
    StartPanel();
    TakeCalls();
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), ElementsAre("ConnectionState.IsConnected"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(KRX8MaintenanceHostTest, StartSignalWithoutAnAnswerDoesNothing) {
    StartPanelBesideADevice();
    faults->Fail({1, "ConnectionState.IsConnected"});
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), ElementsAre("ConnectionState.IsConnected"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(KRX8MaintenanceHostTest, StartSignalWithoutConnectionDoesNothing) {
    StartPanelBesideADevice();
    ASSERT_EQ(panel->SetConnection(nullptr), contract::kSuccess);
    TakeCalls();
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(KRX8MaintenanceHostTest, StartSignalWithoutConnectionStateDoesNothing) {
    faults->Fail({1, "Connection.QueryConnectionState"});
    StartPanelBesideADevice();
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(KRX8MaintenanceHostTest, StartSignalWithoutControlStaysSilent) {
    StartView();
    InsertDevice(kKrx20);
    ASSERT_EQ(panel->SetConnection(interception.Wrap(host.Connection())), contract::kSuccess);
    TakeCalls();
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), ElementsAre("ConnectionState.IsConnected"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(KRX8MaintenanceHostTest, StartSignalOfADeviceThatFailsStillSucceeds) {
    StartPanelBesideADevice();
    faults->Fail({1, "ProgrammingDeviceControl.GetHardwareInfo"});
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_EQ(TakeMessages().size(), 1u);
}

// Another context

TEST_F(KRX8MaintenanceHostTest, LatestContextIsAskedToCloseAndToShow) {
    const auto otherControl = std::make_shared<CHostViewControlDouble>();
    const auto otherService = std::make_shared<CMessageServiceDouble>();
    CHost other({.areApplied = false});
    other.SetHostViewControl(otherControl);
    other.SetMessageService(otherService);
    StartPanel();
    ASSERT_EQ(panel->SetContext(other.Context()), contract::kSuccess);
    EXPECT_TRUE(PressButton(230));
    ConnectDevice(6);
    EXPECT_EQ(otherControl->closeRequests, 1);
    EXPECT_EQ(viewControl->closeRequests, 0);
    EXPECT_THAT(otherService->shown,
                ElementsAre(WarningBox("Wrong prommer type detected.", "Prommer Maintenance")));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(KRX8MaintenanceHostTest, ContextWithoutViewControlLeavesTheViewAsItIs) {
    CHost other({.areApplied = false});
    StartPanel();
    ASSERT_EQ(panel->SetContext(other.Context()), contract::kSuccess);
    EXPECT_TRUE(View().IsVisible(230));
    EXPECT_TRUE(PressButton(230));
    EXPECT_EQ(viewControl->closeRequests, 0);
    ConnectDevice(kKrx20);
    EXPECT_EQ(RowCount(), 3);
}

// Connection states

TEST_F(KRX8MaintenanceHostTest, ReadyStateClearsTheLogBeforeItReads) {
    StartPanelBesideADevice();
    panel->Output().AppendStatusLine("before");
    std::string logAtFirstCall = "no call";
    faults->RunBefore({1, "ProgrammingDeviceControl.GetHardwareInfo"},
                      [&] { logAtFirstCall = View().GetText(259); });
    RaiseState(7);
    EXPECT_EQ(logAtFirstCall, "");
    EXPECT_THAT(Log(), Not(Contains("before")));
    EXPECT_EQ(TakeCalls().front(), "ProgrammingDeviceControl.GetHardwareInfo");
    EXPECT_EQ(RowCount(), 3);
}

TEST_F(KRX8MaintenanceHostTest, ReadyStateWithoutControlClearsTheLogSilently) {
    StartView();
    ASSERT_EQ(panel->SetConnection(interception.Wrap(host.Connection())), contract::kSuccess);
    panel->Output().AppendStatusLine("before");
    TakeCalls();
    RaiseState(7);
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(KRX8MaintenanceHostTest, SignalsAfterAFailedAccessTryNothingAnew) {
    StartView();
    InsertDevice(kKrx20);
    faults->Fail({1, "SubsystemAccess.GetSubsystem"});
    EXPECT_TRUE(panel->SetSubsystemAccess(interception.Wrap(host.SubsystemAccess())).IsFailure());
    ASSERT_EQ(panel->SetConnection(interception.Wrap(host.Connection())), contract::kSuccess);
    EXPECT_EQ(TakeMessages().size(), 1u);
    TakeCalls();
    RaiseState(7);
    EXPECT_EQ(panel->Go(), contract::kSuccess);
    EXPECT_THAT(TakeCalls(), ElementsAre("ConnectionState.IsConnected"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(KRX8MaintenanceHostTest, GoneStateDisablesAndForgetsTheMode) {
    StartPanel();
    ConnectDevice(kKrx20);
    ForgetWhatWasSeen();
    RaiseState(5);
    for (const ControlId id : {222, 224, 226, 227, 228, 229, 244, 245, 246}) {
        EXPECT_FALSE(IsEnabled(id)) << id;
    }
    EXPECT_EQ(State().deviceMode, DeviceMode{0});
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(KRX8MaintenanceHostTest, GoneStateKeepsTypeTitleAndValues) {
    StartPanel();
    ConnectDevice(kKrx20);
    RaiseState(5);
    EXPECT_EQ(State().deviceType, DeviceType{4});
    EXPECT_EQ(Field(201), "KRX-20 Info");
    EXPECT_EQ(Field(212), "HW 2.1");
    EXPECT_EQ(RowCount(), 3);
}

TEST_F(KRX8MaintenanceHostTest, GoneStateBeforeAnyDeviceTitlesAKrx10) {
    StartPanel();
    RaiseState(5);
    EXPECT_EQ(Field(201), "KRX-10 Info");
    EXPECT_FALSE(IsEnabled(244));
    EXPECT_FALSE(IsEnabled(245));
}

TEST_F(KRX8MaintenanceHostTest, ModeIsAskedForOnlyWhenForgotten) {
    StartPanel();
    ConnectDevice(kKrx20);
    RaiseState(7);
    EXPECT_EQ(CallsOf("ProgrammingDeviceControl.RequestMode"), 1u);
    RaiseState(5);
    RaiseState(7);
    EXPECT_EQ(CallsOf("ProgrammingDeviceControl.RequestMode"), 2u);
    EXPECT_EQ(State().deviceMode, DeviceMode{1});
}

TEST_F(KRX8MaintenanceHostTest, DetailsStayAsTheRefreshLeftThemUntilTheDeviceGoes) {
    StartPanel();
    DeviceDescription device = HealthyDevice(kKrx20);
    device.selfTests[contract::SelfTest::Ethernet] = 5;
    ConnectDevice(device);
    EXPECT_TRUE(IsEnabled(222));
    RaiseState(5);
    EXPECT_FALSE(IsEnabled(222));
}

struct Raised {
    std::int32_t status;
    std::int32_t state;

    friend std::ostream& operator<<(std::ostream& out, const Raised& raised) {
        return out << "status " << raised.status << " state " << raised.state;
    }
};

class IgnoredStateTest : public KRX8MaintenanceHostTest,
                         public testing::WithParamInterface<Raised> {};

TEST_P(IgnoredStateTest, StateChangesNothing) {
    StartPanel();
    ConnectDevice(kKrx20);
    TakeCalls();
    const auto log = Log();
    RaiseState(contract::Status(GetParam().status), GetParam().state);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_EQ(Log(), log);
    EXPECT_TRUE(IsEnabled(226));
    EXPECT_EQ(State().deviceMode, DeviceMode{1});
}

INSTANTIATE_TEST_SUITE_P(States, IgnoredStateTest,
                         testing::Values(Raised{-1, 5}, Raised{-1, 7}, Raised{-2147467259, 5},
                                         Raised{-2147467259, 7}, Raised{-1, 6}, Raised{0, 6},
                                         Raised{0, 0}, Raised{0, 4}, Raised{0, 8}, Raised{0, -5},
                                         Raised{0, -7}, Raised{0, 2147483647}));

TEST_F(KRX8MaintenanceHostTest, StateWithASuccessThatIsNotZeroCounts) {
    StartPanelBesideADevice();
    RaiseState(contract::Status(1), 7);
    EXPECT_EQ(RowCount(), 3);
    RaiseState(contract::Status(1), 5);
    EXPECT_FALSE(IsEnabled(226));
}

}
