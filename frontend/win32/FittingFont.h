#pragma once

#include "frontend/win32/Font.h"
#include "panel/control/DialogTemplate.h"

#include <vector>

namespace win32 {

/// A view's font and smaller ones of its kind, for texts that would not fit otherwise: template
/// rectangles and column widths are fixed, fonts are not. Outlives the windows that it gives fonts
/// to.
class CFittingFont {
public:
    /// `dialog` has the font that the others are made of.
    explicit CFittingFont(HWND dialog);

    /// Gives a control the largest font in which its text fits: a label, a button, a check box, a
    /// read-only field. The view's own font where none of them is small enough, and to be read.
    void Fit(HWND control, panel::ControlKind kind);
    /// The same with the headings of a list, which have one font.
    void FitHeadings(HWND list);

private:
    template <class Fits>
    void Choose(HWND window, Fits fits);

    const HFONT m_font;
    std::vector<OwnedFont> m_smaller;
};

}
