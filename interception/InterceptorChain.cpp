#include "interception/InterceptorChain.h"

#include <algorithm>
#include <utility>

namespace interception {

using contract::Status;

CInterceptorChain::CInterceptorChain(Links links) : m_links(std::move(links)) {}

Status CInterceptorChain::Call(const Operation& operation, FunctionRef<Status()> run) {
    return CallFrom(0, operation, run);
}

bool CInterceptorChain::WrapsResultOf(const Operation& operation) const {
    return std::any_of(m_links.begin(), m_links.end(),
                       [&](const auto& link) { return link->WrapsResultOf(operation); });
}

Status CInterceptorChain::Deliver(const Operation& event, std::function<Status()> deliver) {
    // What a link is given holds the links still to be passed and not itself: a link that keeps it
    // must not keep itself alive.
    for (const auto& link : m_links) {
        deliver = [link, event, next = std::move(deliver)] { return link->Deliver(event, next); };
    }
    return deliver();
}

Status CInterceptorChain::CallFrom(std::size_t index, const Operation& operation,
                                   FunctionRef<Status()> run) {
    if (index == m_links.size()) {
        return run();
    }
    return m_links[index]->Call(operation, [&] { return CallFrom(index + 1, operation, run); });
}

}
