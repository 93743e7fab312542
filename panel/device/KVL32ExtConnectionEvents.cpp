#include "panel/device/KVL32ExtConnectionEvents.h"

#include "contract/host/Connection.h"

#include <utility>

namespace panel {

using contract::Status;

CKVL32ExtConnectionEvents::CKVL32ExtConnectionEvents(std::weak_ptr<IConnectionEventHandler> handler)
    : m_handler(std::move(handler)) {}

void CKVL32ExtConnectionEvents::Connect(const std::shared_ptr<contract::IConnection>& connection) {
    const std::shared_ptr<contract::_IExtConnectionEvents> sink = shared_from_this();
    static_cast<void>(m_subscription.Connect(connection, sink));
}

void CKVL32ExtConnectionEvents::Disconnect(
    const std::shared_ptr<contract::IConnection>& connection) {
    static_cast<void>(m_subscription.Disconnect(connection));
}

Status CKVL32ExtConnectionEvents::ConnectionStateChanged(Status status, std::int32_t state) {
    if (const auto handler = m_handler.lock()) {
        handler->OnConnectionStateChanged(status, state);
    }
    return contract::kSuccess;
}

Status CKVL32ExtConnectionEvents::Event2(std::int32_t, std::int32_t) { return contract::kSuccess; }

}
