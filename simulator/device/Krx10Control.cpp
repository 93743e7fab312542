#include "simulator/device/Krx10Control.h"

#include "simulator/device/CommunicationConfiguration.h"

namespace simulator {

contract::Status CKrx10Control::GetCommunicationConfiguration(
    std::shared_ptr<contract::IKrx10CommunicationConfiguration>& configuration) {
    return m_slot->Deliver<CCommunicationConfiguration>(configuration);
}

contract::Status CKrx10Control::PrepareMedia(contract::Medium) {
    return m_slot->WithDevice([](CDevice&) { return FailAsNotAvailable(); });
}

}
