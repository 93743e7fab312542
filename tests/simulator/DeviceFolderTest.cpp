#include "simulator/DeviceFolder.h"

#include "simulator/Device.h"
#include "tests/simulator/DeviceFolderFixture.h"

#include <optional>

namespace simulator {
namespace {

namespace fs = std::filesystem;

using DeviceFolderTest = DeviceFolderFixture;

TEST_F(DeviceFolderTest, ReadSmallestDescription) {
    const auto device = Read();
    EXPECT_EQ(device.type, 4);
    EXPECT_EQ(device.mode, 1);
    EXPECT_EQ(device.serialNumber, 7);
    EXPECT_EQ(device.hardwareVersion, "");
    EXPECT_EQ(device.totalRamBytes, 1024u);
    EXPECT_EQ(device.totalFlashBytes, 4096u);
    EXPECT_EQ(device.software.boot, "");
    EXPECT_TRUE(device.selfTests.empty());
    EXPECT_FALSE(device.pcCard);
    EXPECT_TRUE(device.faults.empty());
    EXPECT_FALSE(device.loss);
}

TEST_F(DeviceFolderTest, ReadFilesWithSizesOfTheirContent) {
    const auto files = Read().files;
    ASSERT_EQ(files.size(), 2u);
    EXPECT_EQ(files[0].name, "a.fia");
    EXPECT_EQ(files[0].type, 21);
    EXPECT_EQ(files[0].id, 1);
    EXPECT_EQ(files[0].version, "");
    EXPECT_EQ(files[0].location, 1);
    EXPECT_EQ(files[0].generation, 0u);
    EXPECT_EQ(files[0].content, "a.fia");
    EXPECT_EQ(files[0].sizeBytes, 3);
    EXPECT_EQ(files[1].location, 7);
    EXPECT_EQ(files[1].content, "second");
    EXPECT_EQ(files[1].sizeBytes, 5);
}

TEST_F(DeviceFolderTest, ReadIdentityBeyondRealDevices) {
    Describe(Replaced(Replaced(Replaced(kGoodDescription, "\"KRX-20\"", "-9"), "\"Normal\"", "7"),
                      "7,\n  \"memory\"", "-1, \"hardwareVersion\": \"ÄÖ\",\n  \"memory\""));
    const auto device = Read();
    EXPECT_EQ(device.type, -9);
    EXPECT_EQ(device.mode, 7);
    EXPECT_EQ(device.serialNumber, -1);
    EXPECT_EQ(device.hardwareVersion, "ÄÖ");
}

TEST_F(DeviceFolderTest, ReadSoftwareVersions) {
    DescribeWith(R"("software": {"boot": "1", "application": "2", "fpgaCode": "3", "security": "4",
        "fpgaDriver": "5", "mmcrDriver": "6", "usbDeviceFunctionDriver": "7",
        "usbHostControllerDriver": "8", "bootLoader": "9", "serviceFpga": "10"})");
    const auto software = Read().software;
    EXPECT_EQ(software.boot, "1");
    EXPECT_EQ(software.application, "2");
    EXPECT_EQ(software.fpgaCode, "3");
    EXPECT_EQ(software.security, "4");
    EXPECT_EQ(software.fpgaDriver, "5");
    EXPECT_EQ(software.mmcrDriver, "6");
    EXPECT_EQ(software.usbDeviceFunctionDriver, "7");
    EXPECT_EQ(software.usbHostControllerDriver, "8");
    EXPECT_EQ(software.bootLoader, "9");
    EXPECT_EQ(software.serviceFpga, "10");
}

TEST_F(DeviceFolderTest, ReadSelfTestsByNameAndNumber) {
    DescribeWith(R"("selfTests": {"fpgaCode": "ok", "rs232": "mediaNotUsable", "fpga": 796})");
    const auto results = Read().selfTests;
    EXPECT_EQ(results,
              (std::map<contract::SelfTest, std::int32_t>{{contract::SelfTest::FpgaCode, 0},
                                                          {contract::SelfTest::Rs232, 814},
                                                          {contract::SelfTest::Fpga, 796}}));
}

TEST_F(DeviceFolderTest, ReadFixedNetworkAddress) {
    DescribeWith(R"("network": {"useDhcp": false, "ipAddress": "192.168.0.1",
        "subnetMask": "255.255.255.0", "gateway": "192.168.0.254", "description": "desk",
        "macAddress": "00-00-5E-00-53-01"})");
    const auto network = Read().network;
    EXPECT_FALSE(network.useDhcp);
    EXPECT_EQ(network.ipAddress, "192.168.0.1");
    EXPECT_EQ(network.ipAddressValue, 0x0100A8C0u);
    EXPECT_EQ(network.subnetMask, 0x00FFFFFFu);
    EXPECT_EQ(network.gateway, 0xFE00A8C0u);
    EXPECT_EQ(network.description, "desk");
    EXPECT_EQ(network.macAddress, "00-00-5E-00-53-01");
}

TEST_F(DeviceFolderTest, ReadDhcpKeepsTheTextInForce) {
    DescribeWith(R"("network": {"useDhcp": true, "ipAddress": "192.168.0.1"})");
    const auto network = Read().network;
    EXPECT_TRUE(network.useDhcp);
    EXPECT_EQ(network.ipAddress, "192.168.0.1");
    EXPECT_EQ(network.ipAddressValue, 0xFFFFFFFFu);
}

TEST_F(DeviceFolderTest, ReadEmptyAddressAsZero) {
    DescribeWith(R"("network": {"useDhcp": false, "ipAddress": ""})");
    EXPECT_EQ(Read().network.ipAddress, "");
    EXPECT_EQ(Read().network.ipAddressValue, 0u);
}

TEST_F(DeviceFolderTest, ReadPcCard) {
    DescribeWith(R"("pcCard": {"totalBytes": 4294967295})");
    ASSERT_TRUE(Read().pcCard);
    EXPECT_EQ(Read().pcCard->totalBytes, 4294967295u);
}

TEST_F(DeviceFolderTest, ReadFaults) {
    DescribeWith(R"("faults": [
        {"operation": "FileInfo.GetName", "call": 3, "status": "0x8007001F", "description": "d"},
        {"operation": "FileListing.GetFileInfo", "call": 1, "null": true}])");
    const auto faults = Read().faults;
    ASSERT_EQ(faults.size(), 2u);
    EXPECT_EQ(faults[0].operation, "FileInfo.GetName");
    EXPECT_EQ(faults[0].call, 3u);
    EXPECT_FALSE(faults[0].succeedsWithNull);
    EXPECT_EQ(faults[0].status, contract::Status::FromBits(0x8007001F));
    EXPECT_EQ(faults[0].description, "d");
    EXPECT_EQ(faults[1].operation, "FileListing.GetFileInfo");
    EXPECT_TRUE(faults[1].succeedsWithNull);
}

TEST_F(DeviceFolderTest, ReadLatency) {
    DescribeWith(R"("latency": {"defaultMs": 3, "operationsMs": {"FileInfo.GetName": 60000}})");
    const auto latency = Read().latency;
    EXPECT_EQ(latency.defaultMs, 3u);
    EXPECT_EQ(latency.operationsMs,
              (std::map<std::string, std::uint32_t>{{"FileInfo.GetName", 60000}}));
}

TEST_F(DeviceFolderTest, ReadLossWithAndWithoutReturn) {
    DescribeWith(R"("loss": {"operation": "FileInfo.GetName", "call": 5})");
    ASSERT_TRUE(Read().loss);
    EXPECT_EQ(Read().loss->operation, "FileInfo.GetName");
    EXPECT_EQ(Read().loss->call, 5u);
    EXPECT_EQ(Read().loss->returnsAfterCalls, std::nullopt);
    DescribeWith(R"("loss": {"operation": "FileInfo.GetName", "call": 5, "returnsAfterCalls": 9})");
    EXPECT_EQ(Read().loss->returnsAfterCalls, 9u);
}

TEST_F(DeviceFolderTest, OpenMakesTheDevice) {
    const auto result = OpenDevice(m_folder.Path());
    ASSERT_TRUE(std::holds_alternative<std::shared_ptr<CDevice>>(result));
    const auto& device = std::get<std::shared_ptr<CDevice>>(result);
    EXPECT_EQ(device->FreeRamBytes(), 1021u);
    EXPECT_EQ(device->FreeFlashBytes(), 4096u);
    EXPECT_EQ(device->Files()->size(), 2u);
}

TEST_F(DeviceFolderTest, OpenOfBadDeviceTellsWhy) {
    Describe("[]");
    const auto result = OpenDevice(m_folder.Path());
    const auto* error = std::get_if<DescriptionError>(&result);
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->file, m_folder.Path() / "device.json");
    EXPECT_EQ(error->line, 1u);
    EXPECT_EQ(error->reason, "the description must be an object");
}

TEST_F(DeviceFolderTest, OpenWritesNothing) {
    const auto before = Snapshot();
    static_cast<void>(OpenDevice(m_folder.Path()));
    EXPECT_EQ(Snapshot(), before);
    Describe("{");
    const auto beforeFailure = Snapshot();
    static_cast<void>(OpenDevice(m_folder.Path()));
    EXPECT_EQ(Snapshot(), beforeFailure);
}

TEST_F(DeviceFolderTest, LargestStoredFileIsTaken) {
    fs::resize_file(m_folder.Path() / "files/a.fia", 2147483647);
    EXPECT_EQ(Read().files[0].sizeBytes, 2147483647);
}

TEST_F(DeviceFolderTest, ListDevicesOfMissingRootIsEmpty) {
    EXPECT_TRUE(ListDevices(m_folder.Path() / "nowhere").empty());
}

TEST_F(DeviceFolderTest, ListDevicesTakesFoldersWithDescription) {
    m_folder.Write("b/device.json", "damaged");
    m_folder.Write("a/device.json", kGoodDescription);
    m_folder.Write("c/other.json", "");
    EXPECT_EQ(ListDevices(m_folder.Path()),
              (std::vector{m_folder.Path() / "a", m_folder.Path() / "b"}));
}

}
}
