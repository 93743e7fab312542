#pragma once

#include "panel/control/DialogTemplate.h"
#include "panel/control/Geometry.h"

#include <cstdint>

namespace panel {

class IView;

inline constexpr ControlId kOkButton = 1;
inline constexpr ControlId kCancelButton = 2;
inline constexpr ControlId kYesButton = 6;
inline constexpr ControlId kNoButton = 7;

/// Virtual-key codes that the panel acts on (winuser.h); front ends translate into these.
inline constexpr std::uint16_t kDeleteKey = 0x2E;
inline constexpr std::uint16_t kContextMenuKey = 0x5D;

/// What a view tells its owner. A dialog is a template and a handler; the panel is one more.
///
/// Called on the user-interface thread, never from inside a view verb other than SetSize. The view
/// may be destroyed from inside a call.
class IDialogHandler {
public:
    virtual ~IDialogHandler() = default;

    /// The view has been built from its template and is about to be shown. Called once.
    virtual void OnInit(IView& view) = 0;
    /// A button was pressed or a check box toggled, by mouse, key or mnemonic. In a modal dialog
    /// Return sends the default button's id; Escape and the close box send kCancelButton, also when
    /// there is no such button.
    virtual void OnCommand(ControlId id) = 0;
    /// The view has a new client size.
    virtual void OnResized(Size) {}
    /// A key was pressed while a list had the focus; the list still handles it itself.
    virtual void OnListKeyDown(ControlId /*list*/, std::uint16_t /*virtualKey*/) {}
    /// A right click on a list, after the list has adjusted its selection to it. `screen` in screen
    /// coordinates.
    virtual void OnListRightClick(ControlId /*list*/, Point /*screen*/) {}
    /// Help was requested (F1) with the help context of the control that has the focus.
    virtual void OnHelp(std::uint32_t /*context*/) {}
};

}
