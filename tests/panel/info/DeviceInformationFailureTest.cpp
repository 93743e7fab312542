#include "tests/support/RoomFixture.h"

#include <algorithm>
#include <iterator>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

struct Written {
    ControlId field;
    const char* cleared;
    const char* krx10;
    const char* krx8;
};

/// The fields in the order in which they are written, and what they show of a healthy device.
constexpr Written kWrittenInOrder[] = {
    {217, "", "boot 1.02", "boot 1.02"}, {219, "", "app 3.04", "app 3.04"},
    {218, "", "fpga 5.06", "fpga 5.06"}, {212, "", "HW 2.1", "HW 2.1"},
    {215, "0", "2097152", "2097152"},    {213, "0", "8388608", "8388608"},
    {216, "0", "2097152", "2097152"},    {214, "0", "8385602", "8385602"},
    {244, "", "192.168.0.1", ""},        {211, "", "00-00-5E-00-53-14", "4711"}};

class DeviceInformationFailureTest : public PanelFixture {
protected:
    void SetUp() override { StartPanel(); }

    /// The first `count` fields show the device, the others are as the refresh cleared them.
    void ExpectWritten(std::size_t count, bool isKrx8 = false) {
        for (std::size_t i = 0; i < std::size(kWrittenInOrder); ++i) {
            const Written& written = kWrittenInOrder[i];
            const char* shown = isKrx8 ? written.krx8 : written.krx10;
            EXPECT_EQ(Field(written.field), i < count ? shown : written.cleared) << written.field;
        }
    }
};

struct FailureCase {
    const char* operation;
    std::size_t call;
    const char* text;
    /// Fields that show the device, from the first one written.
    std::size_t written;
    /// Network values that were kept, from the first one.
    std::size_t kept;
    std::uint32_t statusOfNull = 0;
};

void PrintTo(const FailureCase& value, std::ostream* out) { *out << value.text; }

constexpr FailureCase kCommonFailures[] = {
    {"ProgrammingDeviceControl.GetSoftwareInfo", 1, "Software Info request failed", 0, 0,
     0x80004003},
    // The first call of this one reads the device type.
    {"ProgrammingDeviceControl.GetHardwareInfo", 2, "Hardware Info request failed", 0, 0,
     0x80004003},
    {"SoftwareInfo.GetBootSwVersion", 1, "Boot SW version query failed", 0, 0},
    {"SoftwareInfo.GetApplicationSwVersion", 1, "Application SW version query failed", 1, 0},
    {"SoftwareInfo.GetFpgaCodeVersion", 1, "FPGA Code version query failed", 2, 0},
    {"HardwareInfo.GetHardwareVersion", 1, "Hardware version query failed", 3, 0},
    {"HardwareInfo.GetTotalRamSize", 1, "Total RAM size query failed", 4, 0},
    {"HardwareInfo.GetTotalFlashSize", 1, "Total Flash size query failed", 5, 0}};

constexpr FailureCase kNetworkFailures[] = {
    {"ProgrammingDeviceSubsystem.GetKrx10Control", 1, "Krx10Control feature get failed", 8, 0,
     0x80004003},
    {"Krx10Control.GetCommunicationConfiguration", 1,
     "KRX-10 Communication configuration query failed", 8, 0, 0x80004003},
    {"Krx10CommunicationConfiguration.QueryCommunicationConfiguration2", 1,
     "IKrx10CommunicationConfiguration2 interface query failed", 8, 0, 0x80004002},
    {"Krx10CommunicationConfiguration2.GetIpAddress", 1, "IP address query failed", 8, 0},
    {"Krx10CommunicationConfiguration2.GetIpAddressValue", 1,
     "Querying of IP address as a 32-bit integer failed", 9, 0},
    {"Krx10CommunicationConfiguration2.GetSubnetMask", 1, "Subnet mask getting failed", 9, 1},
    {"Krx10CommunicationConfiguration2.GetGateway", 1, "Gateway address getting failed", 9, 2},
    {"Krx10CommunicationConfiguration2.GetUseDhcp", 1, "DHCP use getting failed", 9, 3},
    {"Krx10CommunicationConfiguration2.GetDescription", 1, "KRX-10 description query failed", 9, 4},
    {"Krx10CommunicationConfiguration2.GetMacAddress", 1, "MAC address query failed", 9, 5}};

class DeviceInformationStepTest : public DeviceInformationFailureTest,
                                  public testing::WithParamInterface<FailureCase> {
protected:
    void ExpectKept(std::size_t count) {
        const NetworkValues& kept = State().network;
        EXPECT_EQ(kept.ipAddress, count > 0 ? 0x0100A8C0u : 0u);
        EXPECT_EQ(kept.subnetMask, count > 1 ? 0x00FFFFFFu : 0u);
        EXPECT_EQ(kept.gateway, count > 2 ? 0xFE00A8C0u : 0u);
        EXPECT_EQ(kept.useDhcp, count <= 3);
        EXPECT_EQ(kept.description, count > 4 ? "bench 3" : "");
    }
};

TEST_P(DeviceInformationStepTest, FailingStepIsReportedOnceAndRefreshContinues) {
    const FailureCase& failure = GetParam();
    const auto wrappers = interception.LiveWrappers();
    const auto status = contract::Status::FromBits(0x8007001E);
    faults->Fail({failure.call, failure.operation}, {status, "device says no"});
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport(failure.text, "Prommer Maintenance", status,
                                                        "device says no")));
    ExpectWritten(failure.written);
    ExpectKept(failure.kept);
    EXPECT_EQ(RowCount(), 3);
    EXPECT_EQ(State().installedPackageVersion, "002.005.013");
    EXPECT_TRUE(IsEnabled(kUpdateButton));
    EXPECT_EQ(desktop->cursorDepth, 0);
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

TEST_P(DeviceInformationStepTest, NoStepFollowsTheFailingOne) {
    const FailureCase& failure = GetParam();
    faults->Fail({failure.call, failure.operation});
    ConnectDevice(kKrx20);
    const auto calls = TakeCalls();
    const auto report = std::find(calls.begin(), calls.end(), "MessageService.ShowMessage");
    ASSERT_GT(calls.end() - report, 1);
    EXPECT_EQ(*(report - 1), "Context.QueryMessageService");
    EXPECT_EQ(*(report - 2), failure.operation);
    EXPECT_EQ(*(report + 1), "ProgrammingDeviceControl.GetFileListing");
}

INSTANTIATE_TEST_SUITE_P(Common, DeviceInformationStepTest, testing::ValuesIn(kCommonFailures));
INSTANTIATE_TEST_SUITE_P(Network, DeviceInformationStepTest, testing::ValuesIn(kNetworkFailures));

class DeviceInformationNullTest : public DeviceInformationFailureTest,
                                  public testing::WithParamInterface<FailureCase> {};

TEST_P(DeviceInformationNullTest, NullObjectCountsAsThatStepsFailure) {
    const FailureCase& failure = GetParam();
    faults->RunBefore({failure.call, failure.operation},
                      [] { contract::SetErrorInfo("left by a success"); });
    faults->DeliverNull({failure.call, failure.operation});
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport(failure.text, "Prommer Maintenance",
                                        contract::Status::FromBits(failure.statusOfNull))));
    ExpectWritten(failure.written);
    EXPECT_EQ(RowCount(), 3);
}

INSTANTIATE_TEST_SUITE_P(Objects, DeviceInformationNullTest,
                         testing::Values(kCommonFailures[0], kCommonFailures[1],
                                         kNetworkFailures[0], kNetworkFailures[1],
                                         kNetworkFailures[2]));

TEST_F(DeviceInformationFailureTest, FailingSerialNumberIsReported) {
    faults->Fail({1, "HardwareInfo.GetSerialNumber"}, {contract::kUnspecifiedFailure, "no label"});
    ConnectDevice(kKrx8);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Serial Number query failed", "Prommer Maintenance",
                                        contract::kUnspecifiedFailure, "no label")));
    ExpectWritten(8, true);
    EXPECT_EQ(RowCount(), 3);
}

struct MemoryFailureCase {
    const char* operation;
    const char* text;
    const char* freeRam;
};

void PrintTo(const MemoryFailureCase& value, std::ostream* out) { *out << value.text; }

class DeviceInformationMemoryTest : public DeviceInformationFailureTest,
                                    public testing::WithParamInterface<MemoryFailureCase> {};

TEST_P(DeviceInformationMemoryTest, FailingFreeMemoryDoesNotEndTheRoutine) {
    faults->Fail({1, GetParam().operation});
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport(GetParam().text, "Update Free memory",
                                                        contract::kUnspecifiedFailure)));
    EXPECT_EQ(Field(kFreeRamField), GetParam().freeRam);
    EXPECT_EQ(Field(kFreeFlashField), "0");
    EXPECT_EQ(Field(kIpAddressField), "192.168.0.1");
    EXPECT_EQ(Field(kSerialNumberField), "00-00-5E-00-53-14");
}

INSTANTIATE_TEST_SUITE_P(
    Steps, DeviceInformationMemoryTest,
    testing::Values(MemoryFailureCase{"ProgrammingDeviceControl.GetFreeResources",
                                      "Free resources query failed", "0"},
                    MemoryFailureCase{"FreeResources.GetFreeRamSize", "Free RAM size query failed",
                                      "0"},
                    MemoryFailureCase{"FreeResources.GetFreeFlashSize",
                                      "Free Flash size query failed", "2097152"}));

struct OlderCase {
    const char* operation;
    /// Values that are read anew, from the first one.
    std::size_t renewed;
};

void PrintTo(const OlderCase& value, std::ostream* out) { *out << value.operation; }

class OlderValuesTest : public DeviceInformationFailureTest,
                        public testing::WithParamInterface<OlderCase> {};

TEST_P(OlderValuesTest, FailingReadKeepsTheOlderNetworkValues) {
    DeviceDescription other = HealthyDevice(kKrx20);
    other.network.useDhcp = true;
    ConnectDevice(other);
    other.network.ipAddressValue = 0x0500000A;
    other.network.subnetMask = 0x000000FF;
    other.network.gateway = 0x0100000A;
    other.network.useDhcp = false;
    other.network.description = "bench 4";
    faults->Fail({2, std::string("Krx10CommunicationConfiguration2.") + GetParam().operation});
    ConnectDevice(other);
    EXPECT_EQ(TakeMessages().size(), 1u);
    const std::size_t renewed = GetParam().renewed;
    EXPECT_EQ(State().network.ipAddress, renewed > 0 ? 0x0500000Au : 0x0100A8C0u);
    EXPECT_EQ(State().network.subnetMask, renewed > 1 ? 0x000000FFu : 0x00FFFFFFu);
    EXPECT_EQ(State().network.gateway, renewed > 2 ? 0x0100000Au : 0xFE00A8C0u);
    EXPECT_EQ(State().network.useDhcp, renewed <= 3);
    EXPECT_EQ(State().network.description, renewed > 4 ? "bench 4" : "bench 3");
}

INSTANTIATE_TEST_SUITE_P(Reads, OlderValuesTest,
                         testing::Values(OlderCase{"GetIpAddress", 0},
                                         OlderCase{"GetIpAddressValue", 0},
                                         OlderCase{"GetSubnetMask", 1}, OlderCase{"GetGateway", 2},
                                         OlderCase{"GetUseDhcp", 3}, OlderCase{"GetDescription", 4},
                                         OlderCase{"GetMacAddress", 5}));

TEST_F(DeviceInformationFailureTest, Krx8LeavesTheKeptNetworkValues) {
    ConnectDevice(kKrx20);
    ConnectDevice(kKrx8);
    EXPECT_EQ(State().network.ipAddress, 0x0100A8C0u);
    EXPECT_EQ(State().network.description, "bench 3");
    EXPECT_EQ(Field(kIpAddressField), "");
}

}
