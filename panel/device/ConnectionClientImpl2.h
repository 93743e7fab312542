#pragma once

#include "contract/host/Connection.h"
#include "contract/host/ExtConnectionEvents.h"
#include "contract/panel/ConnectionClient.h"
#include "panel/control/Call.h"
#include "panel/device/KVL32ExtConnectionEvents.h"
#include "panel/device/ReentrantLock.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <utility>

namespace panel {

/// Holds the host's connection and its event subscription, and says what its events mean; mixed
/// into `Derived`, which offers Self() and what it does about them: OnAfterAttach(),
/// OnBeforeDetach(), OnConnectionEvent(status, state), OnDeviceConnected() and
/// OnDeviceDisconnected().
///
/// The lock guards the two references only. It may be taken again because the connection is queried
/// under it, and a host may call the panel back from there on the same thread.
template <class Derived>
class IConnectionClientImpl2 : public virtual contract::IConnectionClient,
                               public IConnectionEventHandler {
public:
    contract::Status SetConnection(const std::shared_ptr<contract::IConnection>& connection) final {
        const auto self = static_cast<Derived*>(this)->Self();
        if (connection != Connection()) {
            Detach();
            // The host may have set another one from inside that.
            if (connection && !Connection()) {
                Attach(connection);
            }
        }
        return contract::kSuccess;
    }

    /// Every change comes to OnConnectionEvent first, also one that failed, of which nothing else
    /// is made.
    void OnConnectionStateChanged(contract::Status status, std::int32_t state) final {
        Derived& derived = *static_cast<Derived*>(this);
        derived.OnConnectionEvent(status, state);
        if (status.IsFailure()) {
            return;
        }
        if (state == contract::kConnectionDeviceGone) {
            derived.OnDeviceDisconnected();
        } else if (state == contract::kConnectionDeviceReady) {
            derived.OnDeviceConnected();
        }
    }

    std::uint32_t ConnectionCookie() const {
        return m_events ? m_events->Cookie() : contract::kNotSubscribed;
    }

protected:
    ~IConnectionClientImpl2() override = default;

    std::shared_ptr<contract::IConnection> Connection() const {
        const std::lock_guard lock(m_connectionLock);
        return m_connection;
    }

    /// Null when there is no connection or it cannot tell its state.
    std::shared_ptr<contract::IConnectionState> ConnectionState() const {
        const std::lock_guard lock(m_connectionLock);
        return m_connectionState;
    }

    void Detach() {
        const std::shared_ptr<contract::IConnection> connection = Connection();
        if (!connection) {
            return;
        }
        if (const auto events = std::exchange(m_events, nullptr)) {
            static_cast<Derived*>(this)->OnBeforeDetach();
            events->Disconnect(connection);
        }
        if (!m_events) {
            const std::lock_guard lock(m_connectionLock);
            m_connection.reset();
            m_connectionState.reset();
        }
    }

private:
    /// The host may set another connection, or none, from inside each of these calls. The events
    /// tell: while they are the panel's, so is the connection.
    void Attach(const std::shared_ptr<contract::IConnection>& connection) {
        const auto events =
            std::make_shared<CKVL32ExtConnectionEvents>(static_cast<Derived*>(this)->Self());
        m_events = events;
        TakeHold(connection);
        if (m_events != events) {
            return;
        }
        events->Connect(connection);
        if (m_events == events) {
            static_cast<Derived*>(this)->OnAfterAttach();
        } else if (events->Cookie() != contract::kNotSubscribed) {
            events->Disconnect(connection);
        }
    }

    void TakeHold(const std::shared_ptr<contract::IConnection>& connection) {
        const auto events = m_events;
        const std::lock_guard lock(m_connectionLock);
        m_connection = connection;
        std::shared_ptr<contract::IConnectionState> state;
        static_cast<void>(Query(connection, &contract::IConnection::QueryConnectionState, state));
        if (m_events == events) {
            m_connectionState = state;
        }
    }

    mutable CReentrantLock m_connectionLock;
    std::shared_ptr<contract::IConnection> m_connection;
    std::shared_ptr<contract::IConnectionState> m_connectionState;
    std::shared_ptr<CKVL32ExtConnectionEvents> m_events;
};

}
