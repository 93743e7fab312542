#include "tests/support/SampleDevices.h"

#include "contract/device/SelfTestResults.h"

namespace support {

simulator::StoredFile File(const std::string& name, std::int32_t type, std::int32_t id,
                           const std::string& version) {
    simulator::StoredFile file;
    file.name = name;
    file.type = type;
    file.id = id;
    file.version = version;
    file.sizeBytes = 1000 + id;
    file.location = simulator::kInFlash;
    return file;
}

simulator::DeviceDescription HealthyDevice(std::int32_t type) {
    simulator::DeviceDescription device;
    device.type = type;
    device.mode = simulator::kNormalMode;
    device.serialNumber = 4711;
    device.hardwareVersion = "HW 2.1";
    device.totalRamBytes = 2097152;
    device.totalFlashBytes = 8388608;
    device.software.boot = "boot 1.02";
    device.software.application = "app 3.04";
    device.software.fpgaCode = "fpga 5.06";
    for (std::int32_t test = 1; test <= contract::kSelfTestCount; ++test) {
        device.selfTests[static_cast<contract::SelfTest>(test)] = 0;
    }
    device.network.ipAddress = "192.168.0.1";
    device.network.ipAddressValue = 0x0100A8C0;
    device.network.subnetMask = 0x00FFFFFF;
    device.network.gateway = 0xFE00A8C0;
    device.network.useDhcp = false;
    device.network.description = "bench 3";
    device.network.macAddress = "00-00-5E-00-53-14";
    device.files = {File("alpha.fia", 19, 1, "1.1"), File("beta.fia", 21, 2, "2.2"),
                    File("version.fia", 22, 3, "2.5.13")};
    return device;
}

}
