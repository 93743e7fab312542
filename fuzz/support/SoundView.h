#pragma once

#include "frontend/headless/HeadlessView.h"
#include "panel/control/PanelState.h"
#include "panel/control/PopupMenu.h"

#include <span>

namespace fuzz {

/// Requires what holds of the panel's view whenever nothing is under way: texts are UTF-8, numbers
/// are digits, the selection is of rows that there are, controls that belong together are enabled
/// together.
void RequireSoundView(const headless::CHeadlessView& view, const panel::PanelState& state);

/// Requires that the controls of networked devices and the title of the information are those of
/// the type that the panel knows. Does not hold while a device was exchanged behind a long command,
/// whose refresh waits.
void RequireControlsOfType(const headless::CHeadlessView& view, panel::DeviceType type);

/// Requires a menu of the file list that fits model, mode, rows and selection.
void RequireSoundMenu(std::span<const panel::MenuItem> items, const headless::CHeadlessView& view,
                      const panel::PanelState& state);

}
