#pragma once

#include "contract/host/Connection.h"
#include "contract/host/ExtConnectionEvents.h"
#include "simulator/EventSource.h"
#include "simulator/device/DeviceSlot.h"

#include <memory>
#include <utility>

namespace simulator {

using CConnectionEvents = CEventSource<contract::_IExtConnectionEvents>;

/// The connection of a CHost to whichever device is in the slot. It is its own state.
class CHostConnection final : public contract::IConnection,
                              public contract::IConnectionState,
                              public std::enable_shared_from_this<CHostConnection> {
public:
    explicit CHostConnection(std::shared_ptr<const CDeviceSlot> slot) : m_slot(std::move(slot)) {}

    contract::Status
    QueryConnectionState(std::shared_ptr<contract::IConnectionState>& state) override {
        state = shared_from_this();
        return contract::kSuccess;
    }
    contract::Status QueryBaseObject(
        std::shared_ptr<contract::IBaseObject<contract::_IExtConnectionEvents>>& object) override {
        object = m_events;
        return contract::kSuccess;
    }
    contract::Status IsConnected(bool& connected) override {
        return Give(m_slot->Device() != nullptr, connected);
    }

    CConnectionEvents& Events() { return *m_events; }

    void RaiseState(contract::Status status, std::int32_t state) {
        m_events->RaiseToAll(
            [&](auto& sink) { return sink.ConnectionStateChanged(status, state); });
    }

private:
    const std::shared_ptr<const CDeviceSlot> m_slot;
    const std::shared_ptr<CConnectionEvents> m_events = std::make_shared<CConnectionEvents>();
};

}
