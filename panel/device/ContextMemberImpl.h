#pragma once

#include "contract/host/Context.h"
#include "contract/panel/ContextMember.h"
#include "panel/control/Call.h"

#include <cstdint>
#include <memory>

namespace panel {

/// Membership of a host context, mixed into `Derived`, which offers Self(): its own shared
/// reference as a context member.
template <class Derived>
class IContextMemberImpl : public virtual contract::IContextMember {
public:
    contract::Status
    SetContextAndRegister(const std::shared_ptr<contract::IContext>& context) final {
        const auto self = static_cast<Derived*>(this)->Self();
        const contract::Status status = SetContext(context);
        return status.IsFailure() ? status
                                  : Call(m_context, &contract::IContext::Register, self, m_cookie);
    }

    contract::Status SetContext(const std::shared_ptr<contract::IContext>& context) final {
        if (!context) {
            return contract::kInvalidPointer;
        }
        const auto self = static_cast<Derived*>(this)->Self();
        LeaveContext();
        m_context = context;
        return contract::kSuccess;
    }

protected:
    ~IContextMemberImpl() { LeaveContext(); }

    const std::shared_ptr<contract::IContext>& Context() const { return m_context; }

private:
    void LeaveContext() {
        if (m_cookie != kNotRegistered) {
            static_cast<void>(Call(m_context, &contract::IContext::Unregister,
                                   std::exchange(m_cookie, kNotRegistered)));
        }
        m_context.reset();
    }

    static constexpr std::uint32_t kNotRegistered = 0;

    std::shared_ptr<contract::IContext> m_context;
    std::uint32_t m_cookie = kNotRegistered;
};

}
