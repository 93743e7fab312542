#include "frontend/win32/Font.h"

#include <string_view>

namespace win32 {

namespace {

constexpr std::wstring_view kAlphabet = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int kPointsPerInch = 72;

int DotsPerInch(HDC context) { return GetDeviceCaps(context, LOGPIXELSY); }

panel::FontMetrics Measure(HDC context) {
    const LOGFONTW description = DescribeFont(DotsPerInch(context));
    const OwnedFont font(CreateFontIndirectW(&description));
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

LOGFONTW DescribeFont(int dotsPerInch) {
    LOGFONTW font{};
    font.lfHeight = -MulDiv(kFontPoints, dotsPerInch, kPointsPerInch);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    std::wstring_view(kFontName).copy(font.lfFaceName, LF_FACESIZE - 1);
    return font;
}

OwnedFont MakeFont() {
    const HDC screen = GetDC(nullptr);
    if (!screen) {
        return nullptr;
    }
    const LOGFONTW font = DescribeFont(DotsPerInch(screen));
    ReleaseDC(nullptr, screen);
    return OwnedFont(CreateFontIndirectW(&font));
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
