#pragma once

#include "panel/control/DialogTemplate.h"

namespace win32 {

/// The font of every view and dialog: the shell's dialog font.
inline constexpr const wchar_t* kFontName = L"MS Shell Dlg";
inline constexpr int kFontPoints = 8;

/// Measures that font on the main screen. Zeros when the system has no memory for it.
panel::FontMetrics MeasureFont();

}
