#include "simulator/host/HostContext.h"

#include "simulator/Failure.h"

#include <utility>

namespace simulator {

contract::Status CHostContext::Register(const std::shared_ptr<contract::IContextMember>& member,
                                        std::uint32_t& cookie) {
    if (!member) {
        return Fail(contract::kInvalidPointer, "There is no context member to register");
    }
    m_members.emplace(++m_lastCookie, member);
    return Give(m_lastCookie, cookie);
}

contract::Status CHostContext::Unregister(std::uint32_t cookie) {
    if (m_members.erase(cookie) == 0) {
        return Fail(kNoSuchCookie, "There is no such context member");
    }
    return contract::kSuccess;
}

contract::Status
CHostContext::QueryHostViewControl(std::shared_ptr<contract::IHostViewControl>& control) {
    if (!m_hostViewControl) {
        return Fail(contract::kNoSuchInterface, "This host has no view control");
    }
    return Give(m_hostViewControl, control);
}

contract::Status
CHostContext::QueryMessageService(std::shared_ptr<contract::IMessageService>& service) {
    if (!m_messageService) {
        return Fail(contract::kNoSuchInterface, "This host has no message service");
    }
    return Give(m_messageService, service);
}

void CHostContext::SetHostViewControl(std::shared_ptr<contract::IHostViewControl> control) {
    m_hostViewControl = std::move(control);
}

void CHostContext::SetMessageService(std::shared_ptr<contract::IMessageService> service) {
    m_messageService = std::move(service);
}

}
