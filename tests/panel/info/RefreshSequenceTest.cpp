#include "tests/panel/info/RefreshCalls.h"
#include "tests/support/RoomFixture.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

const Shown kNotNormalWarning = WarningBox(
    "The Programming Device is not in Normal mode and therefore some information about the "
    "Programming Device can be incorrect.\n\nThis can be a result of invalid or broken software of "
    "the Programming Device. Please, update the Programming Device",
    "Prommer Maintenance");

DeviceDescription DeviceInMode(std::int32_t type, std::int32_t mode) {
    DeviceDescription device = HealthyDevice(type);
    device.mode = mode;
    return device;
}

DeviceDescription DeviceWithFailedTest() {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.selfTests[contract::SelfTest::Usb] = 1;
    return device;
}

class RefreshSequenceTest : public PanelFixture {
protected:
    void SetUp() override { StartPanel(); }

    /// Runs inside the next call of the operation, before it is made.
    void Inside(const std::string& operation, std::function<void()> action, std::size_t call = 1) {
        faults->RunBefore({call, operation}, std::move(action));
    }

    /// Fields 211 to 219 and 244.
    std::vector<std::string> Fields() {
        std::vector<std::string> fields;
        for (const ControlId id : {211, 212, 213, 214, 215, 216, 217, 218, 219, 244}) {
            fields.push_back(Field(id));
        }
        return fields;
    }
};

TEST_F(RefreshSequenceTest, ConnectingAHealthyDeviceFillsEveryField) {
    ConnectDevice(kKrx20);
    EXPECT_EQ(Field(kInfoGroup), "KRX-20 Info");
    EXPECT_EQ(Field(kSerialNumberField), "00-00-5E-00-53-14");
    EXPECT_EQ(Field(kHardwareField), "HW 2.1");
    EXPECT_EQ(Field(kFlashSizeField), "8388608");
    EXPECT_EQ(Field(kRamSizeField), "2097152");
    EXPECT_EQ(Field(kFreeRamField), "2097152");
    EXPECT_EQ(Field(kFreeFlashField), "8385602");
    EXPECT_EQ(Field(kBootSwField), "boot 1.02");
    EXPECT_EQ(Field(kFpgaField), "fpga 5.06");
    EXPECT_EQ(Field(kApplicationSwField), "app 3.04");
    EXPECT_EQ(Field(kSelfTestField), "TEST OK");
    EXPECT_EQ(Field(kIpAddressField), "192.168.0.1");
    EXPECT_EQ(RowCount(), 3);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(RefreshSequenceTest, ConnectingAKrx8ShowsItsSerialNumber) {
    ConnectDevice(kKrx8);
    EXPECT_EQ(Field(kInfoGroup), "KRX-8 Info");
    EXPECT_THAT(Fields(), ElementsAre("4711", "HW 2.1", "8388608", "8385602", "2097152", "2097152",
                                      "boot 1.02", "fpga 5.06", "app 3.04", ""));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

// Calls and log lines, in order

struct CallsCase {
    const char* name;
    std::int32_t type;
    Calls identityCalls;
};

void PrintTo(const CallsCase& value, std::ostream* out) { *out << value.name; }

class RefreshCallsTest : public RefreshSequenceTest,
                         public testing::WithParamInterface<CallsCase> {};

TEST_P(RefreshCallsTest, RefreshAsksTheDeviceInOrder) {
    ForgetWhatWasSeen();
    ConnectDevice(GetParam().type);
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls, kSelfTestCalls, kModeCalls, kInformationCalls,
                                 kFreeMemoryCalls, GetParam().identityCalls, kListingCalls}));
}

INSTANTIATE_TEST_SUITE_P(Types, RefreshCallsTest,
                         testing::Values(CallsCase{"Krx8", 1, kSerialNumberCalls},
                                         CallsCase{"Krx8C", 2, kSerialNumberCalls},
                                         CallsCase{"Krx10", 3, kNetworkCalls},
                                         CallsCase{"Krx20", 4, kNetworkCalls},
                                         CallsCase{"Krx21", 5, kNetworkCalls}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(RefreshSequenceTest, RefreshWritesItsLogLinesInOrder) {
    ConnectDevice(kKrx20);
    EXPECT_THAT(Log(),
                ElementsAre("Querying self-tests results", "Programming Device is in Normal mode",
                            "Querying hardware and software info from Programming Device",
                            "Querying free memory resources", "Updating file listing...",
                            "File listing updated"));
}

TEST_F(RefreshSequenceTest, Krx8InServiceModeIsNotAskedForMemory) {
    ForgetWhatWasSeen();
    ConnectDevice(DeviceInMode(kKrx8, kServiceMode));
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls, kSelfTestCalls, kModeCalls, kInformationCalls,
                                 kSerialNumberCalls, kBoxCalls}));
    EXPECT_EQ(Field(kFreeRamField), "0");
    EXPECT_EQ(Field(kFreeFlashField), "0");
    EXPECT_THAT(TakeMessages(), ElementsAre(kNotNormalWarning));
    EXPECT_THAT(Log(),
                ElementsAre("Querying self-tests results", "Programming Device is in Service mode",
                            "Querying hardware and software info from Programming Device"));
}

// Clearing

TEST_F(RefreshSequenceTest, RefreshClearsFieldsBeforeTheFirstCall) {
    ConnectDevice(kKrx20);
    std::vector<std::string> fields;
    int rows = -1;
    Inside(
        "ProgrammingDeviceControl.GetSelfTestResults",
        [&] {
            fields = Fields();
            rows = RowCount();
        },
        2);
    RaiseState(7);
    EXPECT_THAT(fields, ElementsAre("", "", "0", "0", "0", "0", "", "", "", ""));
    EXPECT_EQ(rows, 0);
}

TEST_F(RefreshSequenceTest, ClearingLeavesTheSelfTestField) {
    ConnectDevice(kKrx20);
    std::string status;
    Inside(
        "ProgrammingDeviceControl.GetSelfTestResults", [&] { status = Field(kSelfTestField); }, 2);
    RaiseState(7);
    EXPECT_EQ(status, "TEST OK");
}

TEST_F(RefreshSequenceTest, SecondRefreshShowsTheSameAgain) {
    ConnectDevice(kKrx20);
    const auto fields = Fields();
    const auto wrappers = interception.LiveWrappers();
    RaiseState(7);
    EXPECT_EQ(Fields(), fields);
    EXPECT_EQ(RowCount(), 3);
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

TEST_F(RefreshSequenceTest, RefreshReleasesEveryObjectItObtained) {
    const auto wrappers = interception.LiveWrappers();
    ConnectDevice(kKrx20);
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

// Self-test status

TEST_F(RefreshSequenceTest, FailedTestOffersDetails) {
    ConnectDevice(DeviceWithFailedTest());
    EXPECT_EQ(Field(kSelfTestField), "Some tests failed");
    EXPECT_TRUE(IsEnabled(kDetailsButton));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(RefreshSequenceTest, PassedTestsWithdrawDetails) {
    ConnectDevice(DeviceWithFailedTest());
    ConnectDevice(kKrx20);
    EXPECT_EQ(Field(kSelfTestField), "TEST OK");
    EXPECT_FALSE(IsEnabled(kDetailsButton));
}

TEST_F(RefreshSequenceTest, UnreadableTestsAreReportedAndRefreshContinues) {
    faults->Fail({1, "ProgrammingDeviceControl.GetSelfTestResults"},
                 {contract::kUnspecifiedFailure, "no answer"});
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Cannot get self-test results", "Prommer Maintenance",
                                        contract::kUnspecifiedFailure, "no answer")));
    EXPECT_EQ(Field(kSelfTestField), "Some tests failed");
    EXPECT_TRUE(IsEnabled(kDetailsButton));
    EXPECT_EQ(Field(kBootSwField), "boot 1.02");
    EXPECT_EQ(RowCount(), 3);
}

// Mode

TEST_F(RefreshSequenceTest, KnownModeIsNotAskedForAgain) {
    ConnectDevice(kKrx20);
    ForgetWhatWasSeen();
    RaiseState(7);
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls, kSelfTestCalls, kInformationCalls, kFreeMemoryCalls,
                                 kNetworkCalls, kListingCalls}));
}

TEST_F(RefreshSequenceTest, ModeIsAskedForAgainAfterDisconnecting) {
    ConnectDevice(kKrx20);
    DisconnectDevice();
    ConnectDevice(kKrx20);
    EXPECT_EQ(faults->Calls("ProgrammingDeviceControl.RequestMode"), 2u);
}

TEST_F(RefreshSequenceTest, AskingForTheModeLeavesItAsItIs) {
    ConnectDevice(DeviceInMode(kKrx20, kMaintenanceMode));
    EXPECT_EQ(host.Device()->Mode(), 3);
}

TEST_F(RefreshSequenceTest, FailingModeRequestIsReportedAndRefreshContinues) {
    faults->Fail({1, "ProgrammingDeviceControl.RequestMode"},
                 {contract::Status::FromBits(0x8007001F), "not now"});
    ConnectDevice(kKrx20);
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(ErrorReport("Programming Device Mode query failed", "Prommer Maintenance",
                                contract::Status::FromBits(0x8007001F), "not now"),
                    kNotNormalWarning));
    EXPECT_EQ(Field(kSerialNumberField), "00-00-5E-00-53-14");
    EXPECT_EQ(RowCount(), 0);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

class RefreshModeTest : public RefreshSequenceTest,
                        public testing::WithParamInterface<std::int32_t> {};

TEST_P(RefreshModeTest, OtherModeWarnsAndListsNoFiles) {
    ConnectDevice(DeviceInMode(kKrx20, GetParam()));
    EXPECT_THAT(TakeMessages(), ElementsAre(kNotNormalWarning));
    EXPECT_EQ(RowCount(), 0);
    EXPECT_EQ(Field(kFreeFlashField), "8385602");
    EXPECT_EQ(Field(kIpAddressField), "192.168.0.1");
    EXPECT_TRUE(IsEnabled(kFileList));
}

INSTANTIATE_TEST_SUITE_P(Modes, RefreshModeTest, testing::Values(0, 2, 3, 7, -1));

TEST_F(RefreshSequenceTest, WarningComesAfterTheInformationAndBeforeTheList) {
    std::vector<std::string> before;
    messageService->whileOpen = [&] {
        before = TakeCalls();
        host.Device()->EnterMode(kNormalMode);
    };
    ConnectDevice(DeviceInMode(kKrx20, kServiceMode));
    ASSERT_GT(before.size(), 3u);
    EXPECT_EQ(before[before.size() - 3], "Krx10CommunicationConfiguration2.GetMacAddress");
    EXPECT_EQ(TakeCalls(), kListingCalls);
}

TEST_F(RefreshSequenceTest, ModeAnsweredLateStillCounts) {
    Inside("Krx10CommunicationConfiguration2.GetMacAddress",
           [this] { host.Device()->EnterMode(kNormalMode); });
    ConnectDevice(DeviceInMode(kKrx20, kServiceMode));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(RowCount(), 3);
}

// Installed package version

TEST_F(RefreshSequenceTest, RefreshKeepsThePackageVersionItFinds) {
    ConnectDevice(kKrx20);
    EXPECT_EQ(State().installedPackageVersion, "002.005.013");
}

TEST_F(RefreshSequenceTest, DeviceWithoutVersionFileEmptiesThePackageVersion) {
    ConnectDevice(kKrx20);
    DeviceDescription device = HealthyDevice(kKrx20);
    device.files = {File("alpha.fia", 19, 1)};
    ConnectDevice(device);
    EXPECT_EQ(State().installedPackageVersion, "");
}

TEST_F(RefreshSequenceTest, PackageVersionIsEmptiedAfterTheInformation) {
    ConnectDevice(kKrx20);
    std::string during;
    std::string after = "unset";
    Inside(
        "Krx10CommunicationConfiguration2.GetMacAddress",
        [&] { during = State().installedPackageVersion; }, 2);
    Inside(
        "ProgrammingDeviceControl.GetFileListing", [&] { after = State().installedPackageVersion; },
        2);
    RaiseState(7);
    EXPECT_EQ(during, "002.005.013");
    EXPECT_EQ(after, "");
}

TEST_F(RefreshSequenceTest, ServiceModeEmptiesThePackageVersion) {
    ConnectDevice(kKrx20);
    host.Device()->EnterMode(kServiceMode);
    RaiseState(7);
    EXPECT_EQ(State().installedPackageVersion, "");
}

// Cursor and controls

TEST_F(RefreshSequenceTest, WaitCursorShowsThroughoutTheRefresh) {
    std::vector<bool> isBusy;
    const auto look = [&] { isBusy.push_back(desktop->cursorDepth > 0); };
    messageService->whileOpen = look;
    Inside("HardwareInfo.GetDeviceType", look);
    Inside("SelfTestResults.GetResult", look, 21);
    Inside("ProgrammingDeviceControl.RequestMode", look);
    Inside("HardwareInfo.GetTotalFlashSize", look);
    Inside("FreeResources.GetFreeRamSize", look);
    ConnectDevice(DeviceInMode(kKrx20, kServiceMode));
    EXPECT_THAT(isBusy, ElementsAre(false, true, true, true, true, true));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(RefreshSequenceTest, ControlsAreEnabledLast) {
    bool wasEnabled = true;
    Inside(
        "FileInfo.GetGeneration", [&] { wasEnabled = IsEnabled(kUpdateButton); }, 3);
    ConnectDevice(kKrx20);
    EXPECT_FALSE(wasEnabled);
    for (const ControlId id : {224, 226, 227, 228, 229, 244, 245, 246}) {
        EXPECT_TRUE(IsEnabled(id)) << id;
    }
    EXPECT_FALSE(IsEnabled(kDetailsButton));
}

TEST_F(RefreshSequenceTest, FailureOfEverythingStillEnablesTheControls) {
    ForgetWhatWasSeen();
    for (const char* operation :
         {"ProgrammingDeviceControl.GetSelfTestResults", "ProgrammingDeviceControl.RequestMode",
          "ProgrammingDeviceControl.GetSoftwareInfo"}) {
        faults->Fail({1, operation});
    }
    ConnectDevice(kKrx20);
    std::vector<std::string> texts;
    for (const Shown& shown : TakeMessages()) {
        texts.push_back(shown.text.substr(0, 35));
    }
    EXPECT_THAT(texts,
                ElementsAre("Cannot get self-test results", "Programming Device Mode query faile",
                            "Software Info request failed", "The Programming Device is not in No"));
    EXPECT_THAT(Fields(), ElementsAre("", "", "0", "0", "0", "0", "", "", "", ""));
    EXPECT_TRUE(IsEnabled(kUpdateButton));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

// Events that arrive meanwhile

TEST_F(RefreshSequenceTest, ReadyStateWhileTestsAreReadStartsNoRefresh) {
    ForgetWhatWasSeen();
    Inside("ProgrammingDeviceControl.GetSelfTestResults", [this] { RaiseState(7); });
    ConnectDevice(kKrx20);
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls,
                                 {"ProgrammingDeviceControl.GetSelfTestResults"},
                                 kTypeCalls,
                                 Repeat(21, {"SelfTestResults.GetResult"}),
                                 kModeCalls,
                                 kInformationCalls,
                                 kFreeMemoryCalls,
                                 kNetworkCalls,
                                 kListingCalls}));
    EXPECT_TRUE(State().refreshAllowed);
}

TEST_F(RefreshSequenceTest, ReadyStateInsideARefreshRunsOneInside) {
    ForgetWhatWasSeen();
    Inside("SoftwareInfo.GetBootSwVersion", [this] { RaiseState(7); });
    ConnectDevice(kKrx20);
    const Calls inner = Join({kTypeCalls, kSelfTestCalls, kInformationCalls, kFreeMemoryCalls,
                              kNetworkCalls, kListingCalls});
    const Calls before(kInformationCalls.begin(), kInformationCalls.begin() + 3);
    const Calls after(kInformationCalls.begin() + 3, kInformationCalls.end());
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls, kSelfTestCalls, kModeCalls, before, inner, after,
                                 kFreeMemoryCalls, kNetworkCalls, kListingCalls}));
    EXPECT_EQ(RowCount(), 3);
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(RefreshSequenceTest, RefreshInsideTheListingStopsTheOuterOne) {
    Inside(
        "FileInfo.GetSize", [this] { RaiseState(7); }, 2);
    ConnectDevice(kKrx20);
    EXPECT_EQ(RowCount(), 3);
    EXPECT_THAT(Row(2), ElementsAre("version.fia", "MCUSW", "3", "2.5.13", "1003", "Flash", ""));
    EXPECT_EQ(faults->Calls("FileListing.GetFileInfo"), 5u);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

TEST_F(RefreshSequenceTest, GoneStateInsideARefreshLetsItRunOn) {
    Inside("FreeResources.GetFreeRamSize", [this] { RaiseState(5); });
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(), ElementsAre(kNotNormalWarning));
    EXPECT_EQ(State().deviceMode, DeviceMode::NotYetKnown);
    EXPECT_EQ(Field(kIpAddressField), "192.168.0.1");
    EXPECT_EQ(RowCount(), 0);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

TEST_F(RefreshSequenceTest, DeviceExchangedInsideIsReadByItsOwnType) {
    Inside("ProgrammingDeviceControl.GetSoftwareInfo", [this] { ConnectDevice(6); });
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(WarningBox("Wrong prommer type detected.", "Prommer Maintenance")));
    EXPECT_EQ(Field(kInfoGroup), "KRX-unknown");
    EXPECT_EQ(Field(kSerialNumberField), "4711");
    EXPECT_EQ(Field(kIpAddressField), "");
    EXPECT_EQ(faults->Calls("ProgrammingDeviceSubsystem.GetKrx10Control"), 0u);
}

TEST_F(RefreshSequenceTest, RefreshWithoutViewStillReadsEverything) {
    ForgetWhatWasSeen();
    panel->DestroyView();
    ConnectDevice(kKrx20);
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls, kSelfTestCalls, kModeCalls, kInformationCalls,
                                 kFreeMemoryCalls, kNetworkCalls, kListingCalls}));
    EXPECT_EQ(State().network.description, "bench 3");
    EXPECT_EQ(State().installedPackageVersion, "002.005.013");
}

// The refresh by itself

class RefreshByItselfTest : public RoomFixture {};

TEST_F(RefreshByItselfTest, NothingHappensWhileRefreshingIsNotAllowed) {
    Insert(HealthyDevice(kKrx20));
    View().SetText(kHardwareField, "kept");
    View().InsertRow(kFileList, 0, "kept");
    State().refreshAllowed = false;
    State().installedPackageVersion = "001";
    rooms->refresh.RefreshDeviceInfo();
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_EQ(Field(kHardwareField), "kept");
    EXPECT_EQ(RowCount(), 1);
    EXPECT_EQ(State().installedPackageVersion, "001");
    EXPECT_FALSE(IsEnabled(kUpdateButton));
    EXPECT_EQ(desktop->highestCursorDepth, 0);
    EXPECT_FALSE(State().refreshAllowed);
}

TEST_F(RefreshByItselfTest, UnknownTypeIsReadBySerialNumberWithoutNetwork) {
    Insert(HealthyDevice(6));
    State().deviceType = static_cast<DeviceType>(6);
    rooms->refresh.RefreshDeviceInfo();
    EXPECT_EQ(TakeCalls(), Join({kSelfTestCalls, kModeCalls, kInformationCalls, kFreeMemoryCalls,
                                 kSerialNumberCalls, kListingCalls}));
    EXPECT_EQ(Field(kSerialNumberField), "4711");
    EXPECT_EQ(Field(kInfoGroup), "KRX-unknown");
    EXPECT_TRUE(IsEnabled(kNetworkButton));
}

TEST_F(RefreshByItselfTest, WithoutControlEveryPartReportsItsFirstStep) {
    rooms->refresh.RefreshDeviceInfo();
    const contract::Status status = contract::Status::FromBits(0x80004003);
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(
            ErrorReport("Cannot get self-test results", "Prommer Maintenance", status),
            ErrorReport("Programming Device Mode query failed", "Prommer Maintenance", status),
            ErrorReport("Software Info request failed", "Prommer Maintenance", status),
            kNotNormalWarning,
            ErrorReport("A fatal error has occured, please restart Halcyon and try again.",
                        "Prommer Maintenance", status)));
    EXPECT_TRUE(IsEnabled(kUpdateButton));
    EXPECT_TRUE(State().refreshAllowed);
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(RefreshByItselfTest, WarningCarriesNoOlderDescription) {
    contract::SetErrorInfo("left by somebody");
    Insert(HealthyDevice(kKrx20));
    State().deviceMode = DeviceMode::Service;
    faults->RunAfter({1, "Krx10CommunicationConfiguration2.GetMacAddress"},
                     [] { contract::SetErrorInfo("left by a success"); });
    rooms->refresh.RefreshDeviceInfo();
    EXPECT_THAT(TakeMessages(), ElementsAre(kNotNormalWarning));
}

}
