#pragma once

#include "contract/EventSource.h"
#include "simulator/Failure.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace simulator {

/// The subscribers to one event interface, and the base object through which they find it.
///
/// A handler may subscribe, unsubscribe and raise further events: an event reaches those that were
/// subscribed when it was raised and still are when their turn comes.
template <class Events>
class CEventSource final : public contract::IBaseObject<Events>,
                           public contract::IEventSource<Events>,
                           public std::enable_shared_from_this<CEventSource<Events>> {
public:
    contract::Status
    FindEventSource(std::shared_ptr<contract::IEventSource<Events>>& source) override {
        source = this->shared_from_this();
        return contract::kSuccess;
    }

    /// kInvalidPointer for a null sink.
    contract::Status Subscribe(const std::shared_ptr<Events>& sink,
                               std::uint32_t& cookie) override {
        if (!sink) {
            return Fail(contract::kInvalidPointer, "There is no event sink to subscribe");
        }
        m_subscriptions.push_back({++m_lastCookie, sink});
        return Give(m_lastCookie, cookie);
    }

    /// kNoSuchCookie for a cookie that names no subscription.
    contract::Status Unsubscribe(std::uint32_t cookie) override {
        const auto found = Find(cookie);
        if (found == m_subscriptions.end()) {
            return Fail(kNoSuchCookie, "There is no such event subscription");
        }
        // The sink is released last, when this object is in order: its end may reach back here.
        const auto sink = std::move(found->sink);
        m_subscriptions.erase(found);
        return contract::kSuccess;
    }

    /// Calls `raise` with each sink, in the order of subscription; the results mean nothing.
    template <class Raise>
    void RaiseToAll(const Raise& raise) {
        const auto subscriptions = m_subscriptions;
        for (const auto& subscription : subscriptions) {
            if (Find(subscription.cookie) != m_subscriptions.end()) {
                static_cast<void>(raise(*subscription.sink));
            }
        }
    }

    std::size_t SubscriberCount() const { return m_subscriptions.size(); }

private:
    struct Subscription {
        std::uint32_t cookie;
        std::shared_ptr<Events> sink;
    };

    auto Find(std::uint32_t cookie) {
        return std::find_if(m_subscriptions.begin(), m_subscriptions.end(),
                            [&](const auto& entry) { return entry.cookie == cookie; });
    }

    std::uint32_t m_lastCookie = 0;
    std::vector<Subscription> m_subscriptions;
};

}
