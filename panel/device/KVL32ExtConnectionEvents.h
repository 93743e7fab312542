#pragma once

#include "contract/host/ExtConnectionEvents.h"
#include "panel/device/EventSubscription.h"

#include <memory>

namespace contract {
class IConnection;
}

namespace panel {

/// Who handles the connection's events.
class IConnectionEventHandler {
public:
    virtual void OnConnectionStateChanged(contract::Status status, std::int32_t state) = 0;

protected:
    ~IConnectionEventHandler() = default;
};

/// The panel's sink for connection events and its subscription; held like the sink for device
/// events.
class CKVL32ExtConnectionEvents final
    : public contract::_IExtConnectionEvents,
      public std::enable_shared_from_this<CKVL32ExtConnectionEvents> {
public:
    explicit CKVL32ExtConnectionEvents(std::weak_ptr<IConnectionEventHandler> handler);

    /// Subscribes to the events of `connection`; a failure leaves the panel without them.
    void Connect(const std::shared_ptr<contract::IConnection>& connection);
    void Disconnect(const std::shared_ptr<contract::IConnection>& connection);

    std::uint32_t Cookie() const { return m_subscription.Cookie(); }

    contract::Status ConnectionStateChanged(contract::Status status, std::int32_t state) override;
    contract::Status Event2(std::int32_t first, std::int32_t second) override;

private:
    std::weak_ptr<IConnectionEventHandler> m_handler;
    CEventSubscription<contract::_IExtConnectionEvents> m_subscription;
};

}
