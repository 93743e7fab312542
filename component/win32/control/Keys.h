#pragma once

#include "component/win32/com/ComApi.h"

#include <vector>

/// What keys do in the panel's view, which is a dialog without a message loop of its own.
namespace component {

/// Whether a message is that of a key, pressed, let go, or as a character.
bool IsKeyMessage(const MSG& message);

/// Whether a key message in the view is the view's own: Tab unless it would leave the view, arrow
/// keys, Return on a button, mnemonics that press a button, characters, and F1. The others are the
/// container's to look at first.
bool IsForView(HWND view, const MSG& message);

/// Carries such a message out; false where the view had no use for it after all.
bool HandOn(HWND view, MSG& message);

/// The mnemonics of the view's buttons, each with Alt, as a container wants to know them.
std::vector<ACCEL> Mnemonics();

/// The button whose mnemonic that key or character is; null when there is none, or the user could
/// not press it, as in a view that is null.
HWND FindButton(HWND view, const MSG& message);

}
