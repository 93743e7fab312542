#include "simulator/folder/DescriptionWriter.h"

#include "tests/simulator/DeviceFolderFixture.h"

namespace simulator {
namespace {

class DescriptionWriterTest : public DeviceFolderFixture {
protected:
    static std::string TextOf(const std::filesystem::path& file) {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }
    void ExpectSameAfterWriting() {
        const auto device = Read();
        Describe(WriteDescription(device));
        EXPECT_EQ(Read(), device);
    }
};

TEST_F(DescriptionWriterTest, SamplesAreWrittenAsTheyAre) {
    for (const auto& folder : ListDevices(KRX8_SAMPLES)) {
        const auto device = ReadDeviceFolder(folder);
        EXPECT_EQ(WriteDescription(std::get<DeviceDescription>(device)),
                  TextOf(folder / "device.json"));
    }
}

TEST_F(DescriptionWriterTest, SmallestDescriptionStaysSmall) {
    EXPECT_EQ(WriteDescription(Read()),
              R"({
  "model": "KRX-20",
  "mode": "Normal",
  "serialNumber": 7,
  "memory": {
    "ramBytes": 1024,
    "flashBytes": 4096
  },
  "files": [
    { "name": "a.fia", "type": "algorithm", "id": 1, "version": "",)"
              R"( "location": "RAM", "generation": "none" },
    { "name": "b.fia", "type": "mcuSoftware", "id": 2, "version": "",)"
              R"( "location": 7, "generation": "none", "content": "second" }
  ]
}
)");
}

TEST_F(DescriptionWriterTest, EverythingThatCanBeSaidSurvives) {
    DescribeWith(R"("hardwareVersion": "ÄÖ \"x\"\n", "pcCard": {"totalBytes": 4294967295},
      "software": {"boot": "1", "application": "2", "fpgaCode": "3", "security": "4",
        "fpgaDriver": "5", "mmcrDriver": "6", "usbDeviceFunctionDriver": "7",
        "usbHostControllerDriver": "8", "bootLoader": "9", "serviceFpga": "10"},
      "selfTests": {"ram": "ok", "usb": 796, "fpga": "mediaNotUsable", "eeprom": "notRun"},
      "network": {"useDhcp": true, "ipAddress": "192.0.2.20", "subnetMask": "255.255.255.0",
        "gateway": "192.0.2.1", "description": "d", "macAddress": "m"},
      "faults": [{"operation": "FileInfo.GetSize", "call": 2, "status": "0x80004005",
                  "description": "Flash"},
                 {"operation": "FileListing.GetFileInfo", "call": 9, "null": true}],
      "latency": {"defaultMs": 2,
                  "operationsMs": {"ProgrammingDeviceControl.GetSelfTestResults": 400}},
      "loss": {"operation": "ProgrammingDeviceControl.GetFreeResources", "call": 3,
               "returnsAfterCalls": 0})");
    ExpectSameAfterWriting();
}

TEST_F(DescriptionWriterTest, NumbersWithoutNameSurvive) {
    Describe(Replaced(Replaced(kGoodDescription, "\"KRX-20\"", "-9"), "\"Normal\"", "-2147483648"));
    ExpectSameAfterWriting();
}

TEST_F(DescriptionWriterTest, AddressesOfZeroSurvive) {
    DescribeWith(R"("network": {"useDhcp": false, "ipAddress": "0.0.0.0", "subnetMask": ""})");
    ExpectSameAfterWriting();
}

TEST_F(DescriptionWriterTest, EmptyListsAndOddTextsSurvive) {
    auto device = Read();
    device.files.clear();
    device.faults = {{"FileInfo.GetSize", 4294967295, false, contract::Status::FromBits(0xFFFFFFFF),
                      "\x01\xE2\x80\xA8"}};
    Describe(WriteDescription(device));
    EXPECT_EQ(Read(), device);
}

}
}
