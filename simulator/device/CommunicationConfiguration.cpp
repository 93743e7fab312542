#include "simulator/device/CommunicationConfiguration.h"

#include "simulator/device/NetworkSetup.h"

namespace simulator {

contract::Status CCommunicationConfiguration::ApplyConfiguration() {
    const auto device = m_device.lock();
    if (!device || m_slot->Device() != device) {
        return CDeviceSlot::FailAsNotConnected();
    }
    auto next = device->State();
    auto settings = m_settings;
    if (const auto failure = CompleteNetworkSettings(next, settings)) {
        return Report(failure);
    }
    // The hardware address is the device's own.
    settings.macAddress = next.network.macAddress;
    next.network = std::move(settings);
    return Report(device->Change(std::move(next)));
}

}
