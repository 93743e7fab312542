#pragma once

#include "simulator/Device.h"

#include <memory>

namespace simulator {

/// The place of the one device that a host serves. The service's objects stand on the slot and not
/// on a device, so that devices can come and go behind them.
class CDeviceSlot {
public:
    /// Replaces the device; null empties the slot. Raises nothing. The device's events go to the
    /// subscribers of this slot until it leaves.
    void Insert(std::shared_ptr<CDevice> device);

    const std::shared_ptr<CDevice>& Device() const { return m_device; }
    const std::shared_ptr<CDeviceEvents>& Events() const { return m_events; }

    /// Runs `action` on the device and returns its status; kDeviceNotConnected while there is none.
    /// The device stays alive until `action` has returned, even if it leaves the slot meanwhile.
    template <class Action>
    contract::Status WithDevice(const Action& action) const {
        const auto device = m_device;
        return device ? action(*device) : FailAsNotConnected();
    }

    /// Delivers a new `Object` made from the device; kDeviceNotConnected while there is none.
    template <class Object, class Interface>
    contract::Status Deliver(std::shared_ptr<Interface>& result) const {
        return WithDevice([&](CDevice& device) {
            result = std::make_shared<Object>(device);
            return contract::kSuccess;
        });
    }

    static contract::Status FailAsNotConnected() {
        return Fail(kDeviceNotConnected, "No programming device is connected");
    }

private:
    std::shared_ptr<CDevice> m_device;
    const std::shared_ptr<CDeviceEvents> m_events = std::make_shared<CDeviceEvents>();
};

}
