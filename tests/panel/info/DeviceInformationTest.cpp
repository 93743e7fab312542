#include "tests/support/RoomFixture.h"

#include <algorithm>
#include <iterator>
#include <limits>

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

// A whole refresh around the routine

class DeviceInformationTest : public PanelFixture {
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

class StepFailureTest : public DeviceInformationTest,
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

TEST_P(StepFailureTest, FailingStepIsReportedOnceAndRefreshContinues) {
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

TEST_P(StepFailureTest, NoStepFollowsTheFailingOne) {
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

INSTANTIATE_TEST_SUITE_P(Common, StepFailureTest, testing::ValuesIn(kCommonFailures));
INSTANTIATE_TEST_SUITE_P(Network, StepFailureTest, testing::ValuesIn(kNetworkFailures));

class NullObjectTest : public DeviceInformationTest,
                       public testing::WithParamInterface<FailureCase> {};

TEST_P(NullObjectTest, NullObjectCountsAsThatStepsFailure) {
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

INSTANTIATE_TEST_SUITE_P(Objects, NullObjectTest,
                         testing::Values(kCommonFailures[0], kCommonFailures[1],
                                         kNetworkFailures[0], kNetworkFailures[1],
                                         kNetworkFailures[2]));

TEST_F(DeviceInformationTest, FailingSerialNumberIsReported) {
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

class MemoryFailureTest : public DeviceInformationTest,
                          public testing::WithParamInterface<MemoryFailureCase> {};

TEST_P(MemoryFailureTest, FailingFreeMemoryDoesNotEndTheRoutine) {
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
    Steps, MemoryFailureTest,
    testing::Values(MemoryFailureCase{"ProgrammingDeviceControl.GetFreeResources",
                                      "Free resources query failed", "0"},
                    MemoryFailureCase{"FreeResources.GetFreeRamSize", "Free RAM size query failed",
                                      "0"},
                    MemoryFailureCase{"FreeResources.GetFreeFlashSize",
                                      "Free Flash size query failed", "2097152"}));

TEST_F(DeviceInformationTest, FailingReadKeepsTheOlderNetworkValues) {
    ConnectDevice(kKrx20);
    DeviceDescription other = HealthyDevice(kKrx20);
    other.network.ipAddressValue = 0x0500000A;
    other.network.subnetMask = 0x000000FF;
    other.network.description = "bench 4";
    faults->Fail({2, "Krx10CommunicationConfiguration2.GetSubnetMask"});
    ConnectDevice(other);
    EXPECT_EQ(State().network.ipAddress, 0x0500000Au);
    EXPECT_EQ(State().network.subnetMask, 0x00FFFFFFu);
    EXPECT_EQ(State().network.gateway, 0xFE00A8C0u);
    EXPECT_FALSE(State().network.useDhcp);
    EXPECT_EQ(State().network.description, "bench 3");
}

TEST_F(DeviceInformationTest, Krx8LeavesTheKeptNetworkValues) {
    ConnectDevice(kKrx20);
    ConnectDevice(kKrx8);
    EXPECT_EQ(State().network.ipAddress, 0x0100A8C0u);
    EXPECT_EQ(State().network.description, "bench 3");
    EXPECT_EQ(Field(kIpAddressField), "");
}

// The routine by itself

class ReadingByItselfTest : public RoomFixture {
protected:
    void Read(const DeviceDescription& device) {
        Insert(device);
        State().deviceType = static_cast<DeviceType>(device.type);
        State().deviceMode = DeviceMode::Normal;
        rooms->information.ReadDeviceInformation();
    }
};

TEST_F(ReadingByItselfTest, LogLineIsWrittenBeforeTheFirstCall) {
    std::vector<std::string> log;
    faults->RunBefore({1, "ProgrammingDeviceControl.GetSoftwareInfo"}, [&] { log = Log(); });
    Read(HealthyDevice(kKrx20));
    EXPECT_THAT(log, ElementsAre("Querying hardware and software info from Programming Device"));
}

TEST_F(ReadingByItselfTest, WaitCursorShowsDuringTheRoutine) {
    int depth = 0;
    faults->RunBefore({1, "Krx10CommunicationConfiguration2.GetMacAddress"},
                      [&] { depth = desktop->cursorDepth; });
    Read(HealthyDevice(kKrx20));
    EXPECT_EQ(depth, 1);
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(ReadingByItselfTest, NetworkValuesAreKept) {
    Read(HealthyDevice(kKrx10));
    EXPECT_EQ(State().network.ipAddress, 0x0100A8C0u);
    EXPECT_EQ(State().network.subnetMask, 0x00FFFFFFu);
    EXPECT_EQ(State().network.gateway, 0xFE00A8C0u);
    EXPECT_FALSE(State().network.useDhcp);
    EXPECT_EQ(State().network.description, "bench 3");
}

TEST_F(ReadingByItselfTest, UseOfDhcpIsKept) {
    State().network.useDhcp = false;
    DeviceDescription device = HealthyDevice(kKrx20);
    device.network.useDhcp = true;
    Read(device);
    EXPECT_TRUE(State().network.useDhcp);
}

TEST_F(ReadingByItselfTest, EmptyIpAddressShowsZeros) {
    DeviceDescription device = HealthyDevice(kKrx10);
    device.network.ipAddress = "";
    Read(device);
    EXPECT_EQ(Field(kIpAddressField), "0.0.0.0");
    EXPECT_EQ(State().network.ipAddress, 0x0100A8C0u);
}

TEST_F(ReadingByItselfTest, EmptyTextsShowEmptyFields) {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.software = {};
    device.hardwareVersion = "";
    device.network.macAddress = "";
    for (const ControlId id : {211, 212, 217, 218, 219}) {
        View().SetText(id, "old");
    }
    Read(device);
    for (const ControlId id : {211, 212, 217, 218, 219}) {
        EXPECT_EQ(Field(id), "") << id;
    }
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(ReadingByItselfTest, LongTextIsShownWhole) {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.software.boot = std::string(500, 'b');
    Read(device);
    EXPECT_EQ(Field(kBootSwField), std::string(500, 'b'));
}

TEST_F(ReadingByItselfTest, LargestSizesAreShownUnsigned) {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.totalRamBytes = 4294967295u;
    device.totalFlashBytes = 2147483648u;
    Read(device);
    EXPECT_EQ(Field(kRamSizeField), "4294967295");
    EXPECT_EQ(Field(kFlashSizeField), "2147483648");
}

TEST_F(ReadingByItselfTest, NegativeSerialNumbersShowTheirSign) {
    DeviceDescription device = HealthyDevice(kKrx8);
    device.serialNumber = -1;
    Read(device);
    EXPECT_EQ(Field(kSerialNumberField), "-1");
    device.serialNumber = std::numeric_limits<std::int32_t>::min();
    Read(device);
    EXPECT_EQ(Field(kSerialNumberField), "-2147483648");
}

struct DescriptionCase {
    const char* name;
    std::string read;
    std::string kept;
};

void PrintTo(const DescriptionCase& value, std::ostream* out) { *out << value.name; }

class DescriptionTest : public ReadingByItselfTest,
                        public testing::WithParamInterface<DescriptionCase> {};

TEST_P(DescriptionTest, DescriptionIsKeptUpToItsLimit) {
    State().network.description = "old";
    DeviceDescription device = HealthyDevice(kKrx20);
    device.network.description = GetParam().read;
    Read(device);
    EXPECT_EQ(State().network.description, GetParam().kept);
}

const std::string kTwoByteLetter = "\xC3\xA9";
const std::string kThreeByteSign = "\xE2\x82\xAC";

INSTANTIATE_TEST_SUITE_P(
    Descriptions, DescriptionTest,
    testing::Values(DescriptionCase{"empty", "", ""},
                    DescriptionCase{"at the limit", std::string(110, 'a'), std::string(110, 'a')},
                    DescriptionCase{"one too long", std::string(111, 'a'), std::string(110, 'a')},
                    DescriptionCase{"200 bytes", std::string(200, 'a'), std::string(110, 'a')},
                    DescriptionCase{"letter ends at the limit",
                                    std::string(108, 'a') + kTwoByteLetter + "b",
                                    std::string(108, 'a') + kTwoByteLetter},
                    DescriptionCase{"letter crosses the limit",
                                    std::string(109, 'a') + kTwoByteLetter, std::string(109, 'a')},
                    DescriptionCase{"sign crosses the limit",
                                    std::string(108, 'a') + kThreeByteSign + "b",
                                    std::string(108, 'a')}),
    [](const auto& test) {
        std::string name = test.param.name;
        std::replace(name.begin(), name.end(), ' ', '_');
        return name;
    });

// Which devices have a network

class IdentityTest : public ReadingByItselfTest,
                     public testing::WithParamInterface<std::int32_t> {};

class NetworkedTypeTest : public IdentityTest {};

TEST_P(NetworkedTypeTest, NetworkedDeviceShowsAddresses) {
    Read(HealthyDevice(GetParam()));
    EXPECT_EQ(Field(kSerialNumberField), "00-00-5E-00-53-14");
    EXPECT_EQ(Field(kIpAddressField), "192.168.0.1");
    EXPECT_EQ(faults->Calls("HardwareInfo.GetSerialNumber"), 0u);
}

INSTANTIATE_TEST_SUITE_P(Types, NetworkedTypeTest, testing::Values(3, 4, 5));

class NumberedTypeTest : public IdentityTest {};

TEST_P(NumberedTypeTest, OtherDeviceShowsItsSerialNumber) {
    Read(HealthyDevice(GetParam()));
    EXPECT_EQ(Field(kSerialNumberField), "4711");
    EXPECT_EQ(Field(kIpAddressField), "");
    EXPECT_EQ(faults->Calls("ProgrammingDeviceSubsystem.GetKrx10Control"), 0u);
    EXPECT_TRUE(State().network.useDhcp);
}

INSTANTIATE_TEST_SUITE_P(Types, NumberedTypeTest, testing::Values(1, 2, 6, 0, -1));

// Odd circumstances

TEST_F(ReadingByItselfTest, ReadingWithoutControlFailsAtItsFirstStep) {
    rooms->information.ReadDeviceInformation();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Software Info request failed", "Prommer Maintenance",
                                        contract::Status::FromBits(0x80004003))));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(ReadingByItselfTest, ReportCarriesNoOlderDescription) {
    faults->RunAfter({1, "SoftwareInfo.GetBootSwVersion"},
                     [] { contract::SetErrorInfo("left by a success"); });
    faults->Fail({1, "SoftwareInfo.GetApplicationSwVersion"});
    Read(HealthyDevice(kKrx20));
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Application SW version query failed",
                                        "Prommer Maintenance", contract::kUnspecifiedFailure)));
}

TEST_F(ReadingByItselfTest, PositiveStatusIsNoFailure) {
    faults->Fail({1, "HardwareInfo.GetHardwareVersion"}, {contract::Status(1)});
    Read(HealthyDevice(kKrx20));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(Field(kRamSizeField), "2097152");
    EXPECT_EQ(Field(kHardwareField), "");
}

}
