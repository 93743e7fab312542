#pragma once

#include "frontend/win32/WinApi.h"

#include <cstddef>
#include <string>
#include <string_view>

/// The verbs of IView on fields and logs.
namespace win32 {

std::string GetWindowTextOf(HWND window);

/// What the user can make of the text; kNoTextLimit takes the limit away.
void SetTextLimitOf(HWND edit, std::size_t characters);

/// Makes an edit field that the user changes cut at whole characters.
void KeepCharactersWhole(HWND edit);
/// Makes a log leave the keys of a dialog to it, and its text unselected when it gets the focus.
void LeaveKeysToDialog(HWND log);

void AppendTo(HWND log, std::string_view text);
void Clear(HWND log);

}
