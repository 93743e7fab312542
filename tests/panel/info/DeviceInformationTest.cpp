#include "tests/support/RoomFixture.h"

#include <algorithm>
#include <limits>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class DeviceInformationTest : public RoomFixture {
protected:
    void Read(const DeviceDescription& device) {
        Insert(device);
        State().deviceType = static_cast<DeviceType>(device.type);
        State().deviceMode = DeviceMode::Normal;
        rooms->information.ReadDeviceInformation();
    }
};

TEST_F(DeviceInformationTest, LogLineIsWrittenBeforeTheFirstCall) {
    std::vector<std::string> log;
    faults->RunBefore({1, "ProgrammingDeviceControl.GetSoftwareInfo"}, [&] { log = Log(); });
    Read(HealthyDevice(kKrx20));
    EXPECT_THAT(log, ElementsAre("Querying hardware and software info from Programming Device"));
}

TEST_F(DeviceInformationTest, WaitCursorShowsDuringTheRoutine) {
    int depth = 0;
    faults->RunBefore({1, "Krx10CommunicationConfiguration2.GetMacAddress"},
                      [&] { depth = desktop->cursorDepth; });
    Read(HealthyDevice(kKrx20));
    EXPECT_EQ(depth, 1);
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(DeviceInformationTest, NetworkValuesAreKept) {
    Read(HealthyDevice(kKrx10));
    EXPECT_EQ(State().network.ipAddress, 0x0100A8C0u);
    EXPECT_EQ(State().network.subnetMask, 0x00FFFFFFu);
    EXPECT_EQ(State().network.gateway, 0xFE00A8C0u);
    EXPECT_FALSE(State().network.useDhcp);
    EXPECT_EQ(State().network.description, "bench 3");
}

TEST_F(DeviceInformationTest, UseOfDhcpIsKept) {
    State().network.useDhcp = false;
    DeviceDescription device = HealthyDevice(kKrx20);
    device.network.useDhcp = true;
    Read(device);
    EXPECT_TRUE(State().network.useDhcp);
}

TEST_F(DeviceInformationTest, EmptyIpAddressShowsZeros) {
    DeviceDescription device = HealthyDevice(kKrx10);
    device.network.ipAddress = "";
    Read(device);
    EXPECT_EQ(Field(kIpAddressField), "0.0.0.0");
    EXPECT_EQ(State().network.ipAddress, 0x0100A8C0u);
}

TEST_F(DeviceInformationTest, EmptyTextsShowEmptyFields) {
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

TEST_F(DeviceInformationTest, LongTextIsShownWhole) {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.software.boot = std::string(500, 'b');
    Read(device);
    EXPECT_EQ(Field(kBootSwField), std::string(500, 'b'));
}

TEST_F(DeviceInformationTest, LargestSizesAreShownUnsigned) {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.totalRamBytes = 4294967295u;
    device.totalFlashBytes = 2147483648u;
    Read(device);
    EXPECT_EQ(Field(kRamSizeField), "4294967295");
    EXPECT_EQ(Field(kFlashSizeField), "2147483648");
}

TEST_F(DeviceInformationTest, NegativeSerialNumbersShowTheirSign) {
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

class KeptDescriptionTest : public DeviceInformationTest,
                            public testing::WithParamInterface<DescriptionCase> {};

TEST_P(KeptDescriptionTest, DescriptionIsKeptUpToItsLimit) {
    State().network.description = "old";
    DeviceDescription device = HealthyDevice(kKrx20);
    device.network.description = GetParam().read;
    Read(device);
    EXPECT_EQ(State().network.description, GetParam().kept);
}

const std::string kTwoByteLetter = "\xC3\xA9";
const std::string kThreeByteSign = "\xE2\x82\xAC";

INSTANTIATE_TEST_SUITE_P(
    Descriptions, KeptDescriptionTest,
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

class IdentityTest : public DeviceInformationTest,
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

TEST_F(DeviceInformationTest, ReadingWithoutControlFailsAtItsFirstStep) {
    rooms->information.ReadDeviceInformation();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Software Info request failed", "Prommer Maintenance",
                                        contract::Status::FromBits(0x80004003))));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(DeviceInformationTest, ReportCarriesNoOlderDescription) {
    faults->RunAfter({1, "SoftwareInfo.GetBootSwVersion"},
                     [] { contract::SetErrorInfo("left by a success"); });
    faults->Fail({1, "SoftwareInfo.GetApplicationSwVersion"});
    Read(HealthyDevice(kKrx20));
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Application SW version query failed",
                                        "Prommer Maintenance", contract::kUnspecifiedFailure)));
}

TEST_F(DeviceInformationTest, PositiveStatusIsNoFailure) {
    faults->Fail({1, "HardwareInfo.GetHardwareVersion"}, {contract::Status(1)});
    Read(HealthyDevice(kKrx20));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(Field(kRamSizeField), "2097152");
    EXPECT_EQ(Field(kHardwareField), "");
}

}
