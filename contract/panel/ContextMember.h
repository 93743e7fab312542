#pragma once

#include "contract/Status.h"

#include <memory>

namespace contract {

class IContext;

/// How a host hands the panel its context. Two forms; use one of them, before the view is created
/// (without a context the view stays inert for good). A context that takes the place of another one
/// ends the panel's registration with that one.
class IContextMember {
public:
    virtual ~IContextMember() = default;

    /// Keeps the context and registers the panel with it at once. Returns the status of the
    /// registration (the context is kept in any case); kInvalidPointer for null, keeping nothing.
    virtual Status SetContextAndRegister(const std::shared_ptr<IContext>& context) = 0;

    /// Keeps the context. kInvalidPointer for null, keeping nothing.
    virtual Status SetContext(const std::shared_ptr<IContext>& context) = 0;
};

}
