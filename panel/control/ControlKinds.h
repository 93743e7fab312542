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

/// Whether a control of that kind shows one text, as IView::SetText sets it.
constexpr bool ShowsText(ControlKind kind) {
    switch (kind) {
    case ControlKind::GroupBox:
    case ControlKind::Label:
    case ControlKind::CentredLabel:
    case ControlKind::TextField:
    case ControlKind::NumberField:
    case ControlKind::EditField:
    case ControlKind::CheckBox:
    case ControlKind::Button:
    case ControlKind::DefaultButton:
        return true;
    default:
        return false;
    }
}

}
