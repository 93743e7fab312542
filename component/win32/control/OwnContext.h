#pragma once

#include "component/win32/com/Bridge.h"
#include "contract/host/Context.h"

#include <memory>
#include <utility>

namespace component {

/// The context of a panel that its host has given none. In it the host's message boxes are found,
/// by their class, which needs no context; there is no view control, so that the view is a bare
/// one, and no members are kept.
class COwnContext final : public contract::IContext {
public:
    explicit COwnContext(std::shared_ptr<CBridge> bridge) : m_bridge(std::move(bridge)) {}

    contract::Status Register(const std::shared_ptr<contract::IContextMember>& member,
                              std::uint32_t& cookie) override;
    contract::Status Unregister(std::uint32_t cookie) override;
    contract::Status
    QueryHostViewControl(std::shared_ptr<contract::IHostViewControl>& control) override;
    contract::Status
    QueryMessageService(std::shared_ptr<contract::IMessageService>& service) override;

private:
    const std::shared_ptr<CBridge> m_bridge;
};

}
