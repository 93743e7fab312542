#pragma once

#include "contract/host/Context.h"
#include "contract/panel/ContextMember.h"
#include "panel/control/Call.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace panel {

/// Membership of a host context, mixed into `Derived`, which offers Self(): its own shared
/// reference as a context member.
template <class Derived>
class IContextMemberImpl : public virtual contract::IContextMember {
public:
    IContextMemberImpl(const IContextMemberImpl&) = delete;
    IContextMemberImpl& operator=(const IContextMemberImpl&) = delete;

    contract::Status
    SetContextAndRegister(const std::shared_ptr<contract::IContext>& context) final {
        const auto self = static_cast<Derived*>(this)->Self();
        const contract::Status status = SetContext(context);
        if (status.IsFailure()) {
            return status;
        }
        Unregister(context, std::exchange(m_cookie, kNotRegistered));
        std::uint32_t cookie = kNotRegistered;
        const contract::Status registered =
            Call(context, &contract::IContext::Register, self, cookie);
        if (registered.IsFailure()) {
            return registered;
        }
        // From inside that the host may have set another context, or this one again.
        if (m_context == context && m_cookie == kNotRegistered) {
            m_cookie = cookie;
        } else {
            Unregister(context, cookie);
        }
        return registered;
    }

    contract::Status SetContext(const std::shared_ptr<contract::IContext>& context) final {
        if (!context) {
            return contract::kInvalidPointer;
        }
        const auto self = static_cast<Derived*>(this)->Self();
        if (context != m_context) {
            const auto former = std::exchange(m_context, context);
            Unregister(former, std::exchange(m_cookie, kNotRegistered));
        }
        return contract::kSuccess;
    }

protected:
    IContextMemberImpl() = default;
    ~IContextMemberImpl() override { Unregister(m_context, m_cookie); }

    const std::shared_ptr<contract::IContext>& Context() const { return m_context; }

private:
    static void Unregister(const std::shared_ptr<contract::IContext>& context,
                           std::uint32_t cookie) {
        if (cookie != kNotRegistered) {
            static_cast<void>(Call(context, &contract::IContext::Unregister, cookie));
        }
    }

    static constexpr std::uint32_t kNotRegistered = 0;

    std::shared_ptr<contract::IContext> m_context;
    std::uint32_t m_cookie = kNotRegistered;
};

}
