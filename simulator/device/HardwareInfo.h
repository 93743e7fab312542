#pragma once

#include "contract/device/HardwareInfo.h"
#include "simulator/Device.h"

namespace simulator {

/// A device's hardware values at the moment of asking.
class CHardwareInfo final : public contract::IHardwareInfo {
public:
    explicit CHardwareInfo(const CDevice& device)
        : m_type(device.Description().type),
          m_version(device.Description().hardwareVersion),
          m_totalRamBytes(device.Description().totalRamBytes),
          m_totalFlashBytes(device.Description().totalFlashBytes),
          m_serialNumber(device.Description().serialNumber) {}

    contract::Status GetDeviceType(std::int32_t& type) override { return Give(m_type, type); }
    contract::Status GetHardwareVersion(std::string& version) override {
        return Give(m_version, version);
    }
    contract::Status GetTotalRamSize(std::uint32_t& sizeBytes) override {
        return Give(m_totalRamBytes, sizeBytes);
    }
    contract::Status GetTotalFlashSize(std::uint32_t& sizeBytes) override {
        return Give(m_totalFlashBytes, sizeBytes);
    }
    contract::Status GetSerialNumber(std::int32_t& serialNumber) override {
        return Give(m_serialNumber, serialNumber);
    }

private:
    const std::int32_t m_type;
    const std::string m_version;
    const std::uint32_t m_totalRamBytes;
    const std::uint32_t m_totalFlashBytes;
    const std::int32_t m_serialNumber;
};

}
