#pragma once

#include "frontend/win32/WinApi.h"
#include "panel/control/DialogTemplate.h"

#include <memory>
#include <type_traits>

namespace win32 {

struct FontEnd {
    void operator()(HFONT font) const { DeleteObject(font); }
};
using OwnedFont = std::unique_ptr<std::remove_pointer_t<HFONT>, FontEnd>;

/// The font of every view and dialog: the shell's dialog font.
inline constexpr const wchar_t* kFontName = L"MS Shell Dlg";
inline constexpr int kFontPoints = 8;

/// That font for a screen of so many dots per inch.
LOGFONTW DescribeFont(int dotsPerInch);
/// For the main screen, as it is measured and laid out with. Null when the system has no memory for
/// it.
OwnedFont MakeFont();

/// Measures that font on the main screen. Zeros when the system has no memory for it.
panel::FontMetrics MeasureFont();

}
