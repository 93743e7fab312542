#pragma once

#include "panel/control/PanelState.h"
#include "panel/control/PanelView.h"

#include <string_view>

namespace panel {

/// What EnableDeviceControls does for a device type, as values.
struct DeviceControlRules {
    std::string_view infoTitle;
    bool enableNetwork; ///< IP address label and field, network configuration button
    bool enableDevice;  ///< file list, Update, Delete, Report, Reset
    bool disableDetails;
};

/// Enabling never gives Details back: the refresh alone knows whether there are details to show.
DeviceControlRules RulesFor(DeviceType type, bool enable);

/// Enables and disables the controls that depend on the device. User-interface thread only.
class CDeviceControls {
public:
    CDeviceControls(CPanelView& view, const PanelState& state) : m_view(view), m_state(state) {}

    /// Applies the rules of the present device type and titles the information group. Nothing
    /// without a view.
    void EnableDeviceControls(bool enable);

private:
    CPanelView& m_view;
    const PanelState& m_state;
};

}
