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

/// The font that views are made with, ready to be measured.
class MadeFontTest : public testing::Test {
protected:
    ~MadeFontTest() override {
        SelectObject(context, m_before);
        DeleteDC(context);
    }

    const HDC context = CreateCompatibleDC(nullptr);

private:
    const OwnedFont m_font = MakeFont();
    const HGDIOBJ m_before = SelectObject(context, m_font.get());
};

TEST_F(MadeFontTest, HeightMeasuredIsThatOfACharacterWithItsLeading) {
    TEXTMETRICW metrics{};
    GetTextMetricsW(context, &metrics);
    EXPECT_EQ(MeasureFont().height, metrics.tmHeight + metrics.tmExternalLeading);
}

TEST_F(MadeFontTest, WidthMeasuredIsThatOfTheAlphabetInBothCases) {
    SIZE size{};
    GetTextExtentPoint32W(context, L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 52,
                          &size);
    EXPECT_EQ(MeasureFont().alphabetWidth, size.cx);
}

}

}
