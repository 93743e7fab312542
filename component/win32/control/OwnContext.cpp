#include "component/win32/control/OwnContext.h"

#include "component/win32/com/Import.h"

namespace component {

using contract::Status;

Status COwnContext::Register(const std::shared_ptr<contract::IContextMember>&, std::uint32_t&) {
    return contract::kUnspecifiedFailure;
}

Status COwnContext::Unregister(std::uint32_t) { return contract::kUnspecifiedFailure; }

Status COwnContext::QueryHostViewControl(std::shared_ptr<contract::IHostViewControl>&) {
    return contract::kNoSuchInterface;
}

Status COwnContext::QueryMessageService(std::shared_ptr<contract::IMessageService>& service) {
    return ImportByClass(*m_bridge, CLSID_MessageService, service);
}

}
