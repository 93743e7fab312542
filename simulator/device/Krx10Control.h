#pragma once

#include "contract/device/Krx10Control.h"
#include "simulator/device/DeviceSlot.h"

#include <utility>

namespace simulator {

/// What the networked devices add, for whichever device is in the slot. kDeviceNotConnected while
/// the slot is empty.
class CKrx10Control final : public contract::IKrx10Control {
public:
    explicit CKrx10Control(std::shared_ptr<CDeviceSlot> slot) : m_slot(std::move(slot)) {}

    contract::Status GetCommunicationConfiguration(
        std::shared_ptr<contract::IKrx10CommunicationConfiguration>& configuration) override;
    contract::Status PrepareMedia(contract::Medium medium) override;

private:
    const std::shared_ptr<CDeviceSlot> m_slot;
};

}
