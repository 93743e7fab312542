#include "panel/device/ProgrammingDeviceControlEvents.h"

#include "contract/device/ProgrammingDeviceControl.h"

#include <utility>

namespace panel {

using contract::Status;

CProgrammingDeviceControlEvents::CProgrammingDeviceControlEvents(
    std::weak_ptr<IDeviceEventHandler> handler)
    : m_handler(std::move(handler)) {}

Status CProgrammingDeviceControlEvents::Connect(
    const std::shared_ptr<contract::IProgrammingDeviceControl>& control) {
    const std::shared_ptr<contract::_IProgrammingDeviceControlEvents> sink = shared_from_this();
    return m_subscription.Connect(control, sink);
}

void CProgrammingDeviceControlEvents::Disconnect(
    const std::shared_ptr<contract::IProgrammingDeviceControl>& control) {
    // Nobody is left to tell: the panel is going.
    static_cast<void>(m_subscription.Disconnect(control));
}

Status CProgrammingDeviceControlEvents::ModeChanged(std::int32_t mode) {
    if (const auto handler = m_handler.lock()) {
        handler->OnModeChanged(mode);
    }
    return contract::kSuccess;
}

Status CProgrammingDeviceControlEvents::DeviceMessage(const std::string& text, std::uint32_t done,
                                                      std::uint32_t total) {
    if (const auto handler = m_handler.lock()) {
        handler->OnDeviceMessage(text, done, total);
    }
    return contract::kSuccess;
}

Status CProgrammingDeviceControlEvents::Event3(std::int32_t, std::int32_t) {
    return contract::kSuccess;
}

}
