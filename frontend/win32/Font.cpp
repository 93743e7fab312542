#include "frontend/win32/Font.h"

#include "frontend/win32/WinApi.h"

#include <memory>
#include <string_view>
#include <type_traits>

namespace win32 {

namespace {

constexpr std::wstring_view kAlphabet = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int kPointsPerInch = 72;

struct FontEnd {
    void operator()(HFONT font) const { DeleteObject(font); }
};
using OwnedFont = std::unique_ptr<std::remove_pointer_t<HFONT>, FontEnd>;

OwnedFont MakeFont(HDC context) {
    LOGFONTW font{};
    font.lfHeight = -MulDiv(kFontPoints, GetDeviceCaps(context, LOGPIXELSY), kPointsPerInch);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    std::wstring_view(kFontName).copy(font.lfFaceName, LF_FACESIZE - 1);
    return OwnedFont(CreateFontIndirectW(&font));
}

panel::FontMetrics Measure(HDC context) {
    const OwnedFont font = MakeFont(context);
    const HGDIOBJ previous = SelectObject(context, font.get());
    SIZE alphabet{};
    GetTextExtentPoint32W(context, kAlphabet.data(), static_cast<int>(kAlphabet.size()), &alphabet);
    TEXTMETRICW metrics{};
    GetTextMetricsW(context, &metrics);
    SelectObject(context, previous);
    return {static_cast<int>(alphabet.cx),
            static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading)};
}

}

panel::FontMetrics MeasureFont() {
    const HDC screen = GetDC(nullptr);
    if (!screen) {
        return {};
    }
    const panel::FontMetrics metrics = Measure(screen);
    ReleaseDC(nullptr, screen);
    return metrics;
}

}
