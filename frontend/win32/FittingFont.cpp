#include "frontend/win32/FittingFont.h"

#include "frontend/win32/WindowText.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace win32 {

namespace {

using panel::ControlKind;

constexpr int kLeastPercent = 75; // of the height, to be read
constexpr int kButtonMargin = 8;
constexpr int kHeadingMargin = 12;
constexpr int kLongestHeading = 64;

/// A window's context with one of the fonts in it.
class CMeasure {
public:
    CMeasure(HWND window, HFONT font)
        : m_window(window), m_context(GetDC(window)), m_previous(SelectObject(m_context, font)) {}
    ~CMeasure() {
        SelectObject(m_context, m_previous);
        ReleaseDC(m_window, m_context);
    }
    CMeasure(const CMeasure&) = delete;
    CMeasure& operator=(const CMeasure&) = delete;

    /// Of a text with marks of mnemonics, broken into lines of that width; 0: one line.
    SIZE SizeOf(const std::wstring& text, int width) const {
        RECT place{0, 0, width, 0};
        DrawTextW(m_context, text.c_str(), -1, &place,
                  DT_CALCRECT | (width > 0 ? DT_WORDBREAK : DT_SINGLELINE));
        return {place.right, place.bottom};
    }
    int WidthOf(const std::wstring& text) const {
        SIZE size{};
        GetTextExtentPoint32W(m_context, text.c_str(), static_cast<int>(text.size()), &size);
        return static_cast<int>(size.cx);
    }
    int LineHeight() const {
        TEXTMETRICW metrics{};
        GetTextMetricsW(m_context, &metrics);
        return std::max(1, static_cast<int>(metrics.tmHeight));
    }

private:
    const HWND m_window;
    const HDC m_context;
    const HGDIOBJ m_previous;
};

SIZE ClientOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

// A label has room for as many lines as its height comes nearest to.
bool LabelFits(HWND label, const CMeasure& measure, int usualLine) {
    const SIZE client = ClientOf(label);
    const int room = std::max(1, (static_cast<int>(client.cy) + usualLine / 2) / usualLine);
    const SIZE text = measure.SizeOf(WideTextOf(label), std::max(1, static_cast<int>(client.cx)));
    return text.cx <= client.cx && text.cy / measure.LineHeight() <= room;
}

bool FieldFits(HWND field, const CMeasure& measure) {
    RECT room{};
    SendMessageW(field, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
    return measure.WidthOf(WideTextOf(field)) <= room.right - room.left;
}

bool CaptionFits(HWND button, const CMeasure& measure, int margin) {
    return measure.SizeOf(WideTextOf(button), 0).cx <= ClientOf(button).cx - margin;
}

bool IsFitted(ControlKind kind) {
    switch (kind) {
    case ControlKind::Label:
    case ControlKind::CentredLabel:
    case ControlKind::TextField:
    case ControlKind::NumberField:
    case ControlKind::Button:
    case ControlKind::DefaultButton:
    case ControlKind::CheckBox:
        return true;
    default:
        return false;
    }
}

bool Fits(HWND control, ControlKind kind, const CMeasure& measure, int usualLine) {
    switch (kind) {
    case ControlKind::Label:
    case ControlKind::CentredLabel:
        return LabelFits(control, measure, usualLine);
    case ControlKind::TextField:
    case ControlKind::NumberField:
        return FieldFits(control, measure);
    case ControlKind::CheckBox:
        return CaptionFits(control, measure, GetSystemMetrics(SM_CXMENUCHECK) + kButtonMargin);
    default:
        return CaptionFits(control, measure, kButtonMargin);
    }
}

bool HeadingsFit(HWND header, const CMeasure& measure) {
    const auto count = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    for (int index = 0; index < count; ++index) {
        wchar_t text[kLongestHeading] = {};
        HDITEMW item{};
        item.mask = HDI_TEXT | HDI_WIDTH;
        item.pszText = text;
        item.cchTextMax = kLongestHeading;
        SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&item));
        if (measure.WidthOf(text) > item.cxy - kHeadingMargin) {
            return false;
        }
    }
    return true;
}

}

CFittingFont::CFittingFont(HWND dialog)
    : m_font(reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0))) {
    LOGFONTW font{};
    if (!m_font || GetObjectW(m_font, sizeof font, &font) == 0) {
        return;
    }
    const LONG usual = std::abs(font.lfHeight);
    for (LONG height = usual - 1; 100 * height >= kLeastPercent * usual; --height) {
        font.lfHeight = font.lfHeight < 0 ? -height : height;
        m_smaller.emplace_back(CreateFontIndirectW(&font));
    }
}

void CFittingFont::Fit(HWND control, ControlKind kind) {
    if (!IsFitted(kind)) {
        return;
    }
    const int line = CMeasure(control, m_font).LineHeight();
    Choose(control, [&](const CMeasure& measure) { return Fits(control, kind, measure, line); });
}

void CFittingFont::FitHeadings(HWND list) {
    const HWND header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
    Choose(header, [&](const CMeasure& measure) { return HeadingsFit(header, measure); });
}

template <class Fits>
void CFittingFont::Choose(HWND window, Fits fits) {
    HFONT chosen = m_font;
    if (!fits(CMeasure(window, m_font))) {
        const auto fitting = std::ranges::find_if(m_smaller, [&](const OwnedFont& font) {
            return font && fits(CMeasure(window, font.get()));
        });
        chosen = fitting == m_smaller.end() ? m_font : fitting->get();
    }
    if (reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)) != chosen) {
        SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(chosen), TRUE);
    }
}

}
