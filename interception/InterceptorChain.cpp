#include "interception/InterceptorChain.h"

#include <utility>

namespace interception {

namespace {

using contract::Status;
using Links = CInterceptorChain::Links;

/// Hands the event to the last of the first `count` links, which hands it to the one before it.
Status DeliverThrough(const std::shared_ptr<const Links>& links, std::size_t count,
                      const Operation& event, std::function<Status()> deliver) {
    if (count == 0)
        return deliver();
    return (*links)[count - 1]->Deliver(event, [links, count, event, deliver = std::move(deliver)] {
        return DeliverThrough(links, count - 1, event, deliver);
    });
}

}

CInterceptorChain::CInterceptorChain(Links links)
    : m_links(std::make_shared<const Links>(std::move(links))) {}

Status CInterceptorChain::Call(const Operation& operation, FunctionRef<Status()> run) {
    return CallFrom(0, operation, run);
}

Status CInterceptorChain::Deliver(const Operation& event, std::function<Status()> deliver) {
    return DeliverThrough(m_links, m_links->size(), event, std::move(deliver));
}

Status CInterceptorChain::CallFrom(std::size_t index, const Operation& operation,
                                   FunctionRef<Status()> run) {
    if (index == m_links->size())
        return run();
    return (*m_links)[index]->Call(operation, [&] { return CallFrom(index + 1, operation, run); });
}

}
