#pragma once

#include "panel/control/DialogTemplate.h"
#include "panel/control/Geometry.h"

#include <cstdint>

namespace panel {

class CKRX8Maintenance;

/// What can arrive from the panel's view.
enum class PanelEvent {
    Created,
    Resized,
    HelpRequested,
    ButtonPressed,
    ListRightClicked,
    ListKeyPressed,
};

/// One arrival, with what its event carries.
struct Notification {
    PanelEvent event;
    ControlId source = kNoControl; ///< kNoControl: the panel itself
    Size size = {};                ///< Resized: new client size, pixels
    Point screen = {};             ///< ListRightClicked: where, in screen coordinates
    std::uint16_t virtualKey = 0;  ///< ListKeyPressed
    std::uint32_t helpContext = 0; ///< HelpRequested
};

/// Hands `notification` to the first handler that the table names for it; one that the table does
/// not name is not a command.
void Dispatch(CKRX8Maintenance& panel, const Notification& notification);

}
