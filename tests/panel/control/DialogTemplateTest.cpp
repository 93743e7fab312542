#include "panel/control/DialogTemplate.h"

#include <gtest/gtest.h>

namespace panel {
namespace {

TEST(DialogTemplateTest, NaturalSizeIsRoundedToTheNearestPixel) {
    EXPECT_EQ(ToPixels(Size{450, 294}, {7 * 52, 13}), (Size{788, 478}));
    EXPECT_EQ(ToPixels(Size{450, 294}, {6 * 52, 16}), (Size{675, 588}));
}

TEST(DialogTemplateTest, AverageWidthIsRoundedBeforeItIsMultiplied) {
    EXPECT_EQ(ToPixels(Size{4, 8}, {52 * 7 + 25, 13}).width, 7);
    EXPECT_EQ(ToPixels(Size{4, 8}, {52 * 7 + 26, 13}).width, 8);
}

TEST(DialogTemplateTest, RectanglesKeepTheirEdgesTogether) {
    const FontMetrics font{7 * 52, 13};
    const Rectangle left = ToPixels(Rectangle{7, 273, 40, 14}, font);
    EXPECT_EQ(left, (Rectangle{12, 444, 70, 22}));
    EXPECT_EQ(ToPixels(Rectangle{47, 273, 10, 14}, font).x, left.Right());
}

}
}
