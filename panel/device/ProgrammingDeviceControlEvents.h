#pragma once

#include "contract/device/ProgrammingDeviceControlEvents.h"
#include "panel/device/EventSubscription.h"

#include <memory>

namespace contract {
class IProgrammingDeviceControl;
}

namespace panel {

/// Who handles the device's events.
class IDeviceEventHandler {
public:
    virtual void OnModeChanged(std::int32_t mode) = 0;
    virtual void OnDeviceMessage(const std::string& text, std::uint32_t done,
                                 std::uint32_t total) = 0;

protected:
    ~IDeviceEventHandler() = default;
};

/// The panel's sink for device events and its subscription.
///
/// The event source holds the sink; the sink points weakly to its handler and keeps it alive while
/// it handles an event. User-interface thread only.
class CProgrammingDeviceControlEvents final
    : public contract::_IProgrammingDeviceControlEvents,
      public std::enable_shared_from_this<CProgrammingDeviceControlEvents> {
public:
    explicit CProgrammingDeviceControlEvents(std::weak_ptr<IDeviceEventHandler> handler);

    /// Subscribes to the events of `control`: kInvalidPointer when it is null, else the status of
    /// the first step that failed.
    contract::Status Connect(const std::shared_ptr<contract::IProgrammingDeviceControl>& control);

    /// Cancels the subscription; the cookie is kNotSubscribed afterwards, whatever the outcome.
    void Disconnect(const std::shared_ptr<contract::IProgrammingDeviceControl>& control);

    std::uint32_t Cookie() const { return m_subscription.Cookie(); }

    contract::Status ModeChanged(std::int32_t mode) override;
    contract::Status DeviceMessage(const std::string& text, std::uint32_t done,
                                   std::uint32_t total) override;
    contract::Status Event3(std::int32_t first, std::int32_t second) override;

private:
    std::weak_ptr<IDeviceEventHandler> m_handler;
    CEventSubscription<contract::_IProgrammingDeviceControlEvents> m_subscription;
};

}
