#include "frontend/win32/Text.h"

#include <gtest/gtest.h>

namespace win32 {

namespace {

TEST(TextTest, TextGoesToUtf16AndBack) {
    EXPECT_EQ(ToWide("\xC3\x84 \xE2\x82\xAC \xF0\x9F\x94\xA7"), L"\x00C4 \x20AC \xD83D\xDD27");
    EXPECT_EQ(FromWide(L"\x00C4 \x20AC \xD83D\xDD27"), "\xC3\x84 \xE2\x82\xAC \xF0\x9F\x94\xA7");
    EXPECT_EQ(ToWide(""), L"");
    EXPECT_EQ(FromWide(L""), "");
}

TEST(TextTest, InvalidByteBecomesTheReplacementCharacter) {
    EXPECT_EQ(ToWide("a\xFFz"), L"a\xFFFDz");
}

TEST(TextTest, LoneHalfOfACharacterBecomesTheReplacementCharacter) {
    EXPECT_EQ(FromWide(L"a\xD83Dz"), "a\xEF\xBF\xBDz");
}

TEST(TextTest, TextWithTerminatorsIsKeptWhole) {
    EXPECT_EQ(ToWide(std::string_view("a\0b", 3)), std::wstring(L"a\0b", 3));
    EXPECT_EQ(FromWide(std::wstring_view(L"a\0b", 3)), std::string("a\0b", 3));
}

TEST(TextTest, EscapedAmpersandsAreShownAsOne) {
    EXPECT_EQ(EscapeMnemonics(L"R&D && more &"), L"R&&D &&&& more &&");
}

TEST(TextTest, MarksAreTakenOutOfATemplatesText) {
    EXPECT_EQ(WithoutMnemonicMark(L"Re&set"), L"Reset");
    EXPECT_EQ(WithoutMnemonicMark(L"R&&D"), L"R&D");
    EXPECT_EQ(WithoutMnemonicMark(L"end&"), L"end");
}

}

}
