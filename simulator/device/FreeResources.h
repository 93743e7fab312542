#pragma once

#include "contract/device/FreeResources.h"
#include "simulator/Device.h"

namespace simulator {

/// A device's free memory at the moment of asking.
class CFreeResources final : public contract::IFreeResources {
public:
    explicit CFreeResources(const CDevice& device)
        : m_ramBytes(device.FreeRamBytes()), m_flashBytes(device.FreeFlashBytes()) {}

    contract::Status GetFreeRamSize(std::uint32_t& sizeBytes) override {
        return Give(m_ramBytes, sizeBytes);
    }
    contract::Status GetFreeFlashSize(std::uint32_t& sizeBytes) override {
        return Give(m_flashBytes, sizeBytes);
    }

private:
    const std::uint32_t m_ramBytes;
    const std::uint32_t m_flashBytes;
};

}
