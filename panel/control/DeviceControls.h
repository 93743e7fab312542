#pragma once

#include "panel/control/PanelState.h"
#include "panel/control/PanelView.h"

#include <string_view>

namespace panel {

/// What EnableDeviceControls does differently for each device type, as values.
struct DeviceControlRules {
    std::string_view infoTitle;
    bool enableNetwork; ///< IP address label and field, network configuration button
};

DeviceControlRules RulesFor(DeviceType type, bool enable);

/// Enables and disables the controls that depend on the device. User-interface thread only.
class CDeviceControls {
public:
    CDeviceControls(CPanelView& view, const PanelState& state) : m_view(view), m_state(state) {}

    /// Enables or disables the file list, Update, Delete, Report and Reset, and what the rules of
    /// the present device type say; titles the information group. Disabling takes Details too, but
    /// enabling never gives it back: the refresh alone knows whether there are details to show.
    /// Nothing without a view.
    void EnableDeviceControls(bool enable);

private:
    CPanelView& m_view;
    const PanelState& m_state;
};

}
