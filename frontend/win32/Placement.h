#pragma once

#include "frontend/win32/WinApi.h"
#include "panel/control/DialogTemplate.h"
#include "panel/control/Geometry.h"

/// Places of controls, in pixels relative to the client area of their dialog.
namespace win32 {

panel::Rectangle RectangleOf(HWND control);

/// Places a control, keeping its stacking order, and has its frame computed anew. The rectangle of
/// a drop-down list is that of its closed state.
void Place(HWND control, panel::ControlKind kind, const panel::Rectangle& rectangle);

/// Gives a dialog that has been made of a template, and its controls, the sizes that the panel
/// counts with (the system's own units leave the font's leading out), and puts group boxes below
/// what they frame.
void PlaceControls(HWND dialog, const panel::DialogTemplate& dialogTemplate);

/// Gives a window the place on its screen that a dialog in front of `owner` has.
void Centre(HWND dialog, HWND owner);

}
