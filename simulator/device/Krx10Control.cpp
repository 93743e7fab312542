#include "simulator/device/Krx10Control.h"

#include "simulator/device/CommunicationConfiguration.h"
#include "simulator/device/MediaOperations.h"

namespace simulator {

contract::Status CKrx10Control::GetCommunicationConfiguration(
    std::shared_ptr<contract::IKrx10CommunicationConfiguration>& configuration) {
    return m_slot->WithDevice([&](CDevice& device) {
        configuration = std::make_shared<CCommunicationConfiguration>(m_slot, device);
        return contract::kSuccess;
    });
}

contract::Status CKrx10Control::PrepareMedia(contract::Medium medium) {
    return m_slot->WithDevice(
        [&](CDevice& device) { return Report(simulator::PrepareMedia(device, medium)); });
}

}
