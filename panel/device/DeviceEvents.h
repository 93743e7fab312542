#pragma once

#include "panel/control/PanelServices.h"
#include "panel/device/DeviceMode.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace panel {

/// What the panel does when the device speaks. User-interface thread only; handlers may run while a
/// device call is in progress.
class CDeviceEvents {
public:
    explicit CDeviceEvents(PanelServices& services) : m_services(services) {}

    /// Stores the mode and writes it to the status log. Neither refreshes nor enables anything.
    void OnModeChanged(std::int32_t mode);

    /// Writes a progress or plain line to the status log.
    void OnDeviceMessage(const std::string& text, std::uint32_t done, std::uint32_t total);

    /// "Normal", "Service", "Maintenance", or "Unknown" for every other value.
    std::string_view ModeEnumToStr(DeviceMode mode) const;

private:
    PanelServices& m_services;
};

}
