#pragma once

#include "interception/Interceptor.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace interception {

/// Several interceptors as one, the first nearest to the panel: calls pass them from first to last,
/// events, which come the other way, from last to first. Each sees what the one before it lets
/// through. An empty chain lets everything happen. An event that a link keeps may be let go after
/// the chain's end.
class CInterceptorChain final : public IInterceptor {
public:
    using Links = std::vector<std::shared_ptr<IInterceptor>>;

    /// `links` hold no null.
    explicit CInterceptorChain(Links links);

    contract::Status Call(const Operation& operation, FunctionRef<contract::Status()> run) override;
    /// If one of the links wants it.
    bool WrapsResultOf(const Operation& operation) const override;
    contract::Status Deliver(const Operation& event,
                             std::function<contract::Status()> deliver) override;

private:
    contract::Status CallFrom(std::size_t index, const Operation& operation,
                              FunctionRef<contract::Status()> run);

    const Links m_links;
};

}
