#include "panel/control/DialogTemplate.h"

namespace panel {

namespace {

constexpr int kLetters = 52;
constexpr int kUnitsPerAverageWidth = 4;
constexpr int kUnitsPerHeight = 8;

constexpr int DivideRounded(int dividend, int divisor) {
    return (2 * dividend + divisor) / (2 * divisor);
}

}

Size ToPixels(Size dialogUnits, FontMetrics font) {
    const int averageWidth = DivideRounded(font.alphabetWidth, kLetters);
    return {DivideRounded(dialogUnits.width * averageWidth, kUnitsPerAverageWidth),
            DivideRounded(dialogUnits.height * font.height, kUnitsPerHeight)};
}

Rectangle ToPixels(const Rectangle& dialogUnits, FontMetrics font) {
    const Size topLeft = ToPixels(Size{dialogUnits.x, dialogUnits.y}, font);
    const Size bottomRight = ToPixels(Size{dialogUnits.Right(), dialogUnits.Bottom()}, font);
    return {topLeft.width, topLeft.height, bottomRight.width - topLeft.width,
            bottomRight.height - topLeft.height};
}

}
