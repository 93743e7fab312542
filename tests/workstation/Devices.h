#pragma once

#include "simulator/Device.h"

#include <memory>
#include <string>

/// A healthy device of the kind that the sample KRX-20 is, in memory. The last of its files is
/// "version.fia", without which every refresh would offer an update.
inline simulator::DeviceDescription HealthyDevice(int fileCount = 2) {
    simulator::DeviceDescription description;
    description.hardwareVersion = "HW 3";
    description.totalRamBytes = 1'000'000;
    description.totalFlashBytes = 2'000'000;
    description.software.boot = "1.2.3";
    description.software.application = "4.5.6";
    description.software.fpgaCode = "7.8";
    description.software.bootLoader = "1.0";
    description.software.serviceFpga = "2.0";
    description.network.ipAddress = "192.0.2.7";
    description.network.macAddress = "00-00-5E-00-53-07";
    for (int i = 1; i <= fileCount; ++i) {
        const bool isLast = i == fileCount;
        description.files.push_back({isLast ? "version.fia" : "file" + std::to_string(i) + ".fg",
                                     21,
                                     i,
                                     "1.0",
                                     100 * i,
                                     simulator::kInFlash,
                                     3,
                                     {}});
    }
    return description;
}

inline std::shared_ptr<simulator::CDevice> MakeDevice(int fileCount = 2) {
    return simulator::CDevice::Create(HealthyDevice(fileCount));
}
