#pragma once

#include "panel/control/DialogTemplate.h"

/// What controls of a kind have in common, whoever builds them.
namespace panel {

/// Whether a control of that kind can have the focus, and so be asked about.
constexpr bool CanHaveFocus(ControlKind kind) {
    return kind != ControlKind::GroupBox && kind != ControlKind::Label &&
           kind != ControlKind::CentredLabel && kind != ControlKind::Icon &&
           kind != ControlKind::ProgressBar;
}

}
