#pragma once

#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "simulator/device/DeviceSlot.h"

namespace simulator {

/// The way to the controls of whichever device is in the slot.
class CProgrammingDeviceSubsystem final : public contract::IProgrammingDeviceSubsystem {
public:
    explicit CProgrammingDeviceSubsystem(std::shared_ptr<CDeviceSlot> slot);

    /// The same control for the life of the slot, with or without a device in it.
    contract::Status get_ProgrammingDeviceControl(
        std::shared_ptr<contract::IProgrammingDeviceControl>& control) override;
    /// kNoSuchInterface for a device without a network, kDeviceNotConnected without a device.
    contract::Status GetKrx10Control(std::shared_ptr<contract::IKrx10Control>& control) override;

private:
    const std::shared_ptr<CDeviceSlot> m_slot;
    const std::shared_ptr<contract::IProgrammingDeviceControl> m_control;
    const std::shared_ptr<contract::IKrx10Control> m_krx10Control;
};

}
