#pragma once

#include "contract/host/Context.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>

namespace simulator {

/// The context of a CHost. Holds its members weakly; their cookies count from 1.
class CHostContext final : public contract::IContext {
public:
    /// kInvalidPointer for null.
    contract::Status Register(const std::shared_ptr<contract::IContextMember>& member,
                              std::uint32_t& cookie) override;
    /// kNoSuchCookie for a cookie that names no member.
    contract::Status Unregister(std::uint32_t cookie) override;
    contract::Status
    QueryHostViewControl(std::shared_ptr<contract::IHostViewControl>& control) override;
    contract::Status
    QueryMessageService(std::shared_ptr<contract::IMessageService>& service) override;

    /// What the queries answer; null for none.
    void SetHostViewControl(std::shared_ptr<contract::IHostViewControl> control);
    void SetMessageService(std::shared_ptr<contract::IMessageService> service);

    /// Members that have registered and not unregistered, whether they still live or not.
    std::size_t MemberCount() const { return m_members.size(); }

private:
    std::uint32_t m_lastCookie = 0;
    std::map<std::uint32_t, std::weak_ptr<contract::IContextMember>> m_members;
    std::shared_ptr<contract::IHostViewControl> m_hostViewControl;
    std::shared_ptr<contract::IMessageService> m_messageService;
};

}
