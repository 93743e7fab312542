#include "tests/panel/info/RefreshFixture.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class RefreshSequenceTest : public RefreshFixture {};

DeviceDescription DeviceWithFailedTest() {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.selfTests[contract::SelfTest::Usb] = 1;
    return device;
}

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
                            "File listing updated",
                            "Currently installed Flash Update Package in Programming Device is: "
                            "002.005.013"));
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

TEST_F(RefreshSequenceTest, SelfTestStatusIsShownBeforeTheModeIsAskedFor) {
    std::string status;
    bool areDetailsOffered = false;
    Inside("ProgrammingDeviceControl.RequestMode", [&] {
        status = Field(kSelfTestField);
        areDetailsOffered = IsEnabled(kDetailsButton);
    });
    ConnectDevice(DeviceWithFailedTest());
    EXPECT_EQ(status, "Some tests failed");
    EXPECT_TRUE(areDetailsOffered);
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

class KnownOtherModeTest : public RefreshSequenceTest,
                           public testing::WithParamInterface<std::int32_t> {};

TEST_P(KnownOtherModeTest, OtherModeIsNotAskedForAgainButWarnedOfAgain) {
    ConnectDevice(DeviceInMode(kKrx20, GetParam()));
    ForgetWhatWasSeen();
    RaiseState(7);
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls, kSelfTestCalls, kInformationCalls, kFreeMemoryCalls,
                                 kNetworkCalls, kBoxCalls}));
    EXPECT_THAT(TakeMessages(), ElementsAre(kNotNormalWarning));
}

INSTANTIATE_TEST_SUITE_P(Modes, KnownOtherModeTest, testing::Values(2, 3, 7, -1));

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

TEST_F(RefreshSequenceTest, PackageVersionIsEmptyBehindTheWarning) {
    ConnectDevice(kKrx20);
    host.Device()->EnterMode(kServiceMode);
    std::string behindTheWarning = "unset";
    messageService->whileOpen = [&] { behindTheWarning = State().installedPackageVersion; };
    RaiseState(7);
    EXPECT_THAT(TakeMessages(), ElementsAre(kNotNormalWarning));
    EXPECT_EQ(behindTheWarning, "");
}

TEST_F(RefreshSequenceTest, ServiceModeEmptiesThePackageVersion) {
    ConnectDevice(kKrx20);
    host.Device()->EnterMode(kServiceMode);
    RaiseState(7);
    EXPECT_EQ(State().installedPackageVersion, "");
}

}
