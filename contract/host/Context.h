#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <memory>

namespace contract {

class IContextMember;
class IHostViewControl;
class IMessageService;

/// The context in which a host runs its members, the panel among them. User-interface thread only;
/// results are untouched on failure.
class IContext {
public:
    virtual ~IContext() = default;

    /// Makes `member` known to the context and delivers the cookie that names it, which is not 0.
    /// The context holds its members weakly: a panel's life is its host's affair.
    virtual Status Register(const std::shared_ptr<IContextMember>& member,
                            std::uint32_t& cookie) = 0;

    /// Forgets the member that `cookie` names. Fails for a cookie that names none.
    virtual Status Unregister(std::uint32_t cookie) = 0;

    /// Asks for the control of the panel's view. kNoSuchInterface from a host whose view the panel
    /// cannot close; the panel is then left as a bare view: it has no Close button and shows of a
    /// device only the memory sizes and error boxes. The memory fields are addressed by number, the
    /// other controls through a table that a bare view leaves empty.
    virtual Status QueryHostViewControl(std::shared_ptr<IHostViewControl>& control) = 0;

    /// Asks for the host's message boxes. kNoSuchInterface from a host without; the panel then uses
    /// plain ones.
    virtual Status QueryMessageService(std::shared_ptr<IMessageService>& service) = 0;
};

}
