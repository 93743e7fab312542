#include "frontend/win32/Font.h"

#include <gtest/gtest.h>

namespace win32 {

namespace {

TEST(FontTest, HeightGrowsWithTheDotsOfTheScreen) {
    EXPECT_EQ(DescribeFont(96).lfHeight, -11);
    EXPECT_EQ(DescribeFont(144).lfHeight, -16);
    EXPECT_EQ(DescribeFont(192).lfHeight, -21);
    EXPECT_STREQ(DescribeFont(96).lfFaceName, L"MS Shell Dlg");
}

TEST(FontTest, FontMadeHasTheHeightMeasured) {
    const HFONT font = MakeFont();
    const HDC context = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(context, font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(context, &metrics);
    EXPECT_EQ(metrics.tmHeight + metrics.tmExternalLeading, MeasureFont().height);
    SelectObject(context, before);
    DeleteDC(context);
    DeleteObject(font);
}

}

}
