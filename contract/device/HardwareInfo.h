#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <string>

namespace contract {

/// What the hardware of a device says of itself. A snapshot: the values belong to the moment of
/// GetHardwareInfo. One call at a time, on the thread of the call (see ProgrammingDeviceControl.h);
/// results are untouched on failure.
class IHardwareInfo {
public:
    virtual ~IHardwareInfo() = default;

    /// 1 KRX-8, 2 KRX-8C, 3 KRX-10, 4 KRX-20, 5 KRX-21; any other value is an unknown device.
    virtual Status GetDeviceType(std::int32_t& type) = 0;
    /// Hardware version text, UTF-8; empty when the device has none.
    virtual Status GetHardwareVersion(std::string& version) = 0;
    /// Whole RAM, bytes.
    virtual Status GetTotalRamSize(std::uint32_t& sizeBytes) = 0;
    /// Whole flash memory, bytes.
    virtual Status GetTotalFlashSize(std::uint32_t& sizeBytes) = 0;
    /// Serial number; negative values are shown as they are. Not asked of the types 3 to 5, which
    /// are shown with their MAC address instead.
    virtual Status GetSerialNumber(std::int32_t& serialNumber) = 0;
};

}
