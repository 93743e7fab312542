#include "panel/control/Utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace panel {
namespace {

TEST(Utf8Test, CutToBytesKeepsTextsWithinTheLimit) {
    EXPECT_EQ(CutToBytes("", 0), "");
    EXPECT_EQ(CutToBytes("abc", 3), "abc");
    EXPECT_EQ(CutToBytes("abcd", 3), "abc");
}

TEST(Utf8Test, CutToBytesNeverSplitsACharacter) {
    const std::string twoByte = "ab\u00E9"; // 61 62 C3 A9
    const std::string threeByte = "a\u20AC"
                                  "b";          // 61 E2 82 AC 62
    const std::string fourByte = "\U0001F600z"; // F0 9F 98 80 7A
    EXPECT_EQ(CutToBytes(twoByte, 3), "ab");
    EXPECT_EQ(CutToBytes(threeByte, 2), "a");
    EXPECT_EQ(CutToBytes(threeByte, 3), "a");
    EXPECT_EQ(CutToBytes(threeByte, 4), "a\u20AC");
    EXPECT_EQ(CutToBytes(fourByte, 3), "");
    EXPECT_EQ(CutToBytes(fourByte, 4), "\U0001F600");
}

TEST(Utf8Test, CutToBytesCutsForeignBytesAtTheLimit) {
    EXPECT_EQ(CutToBytes("\x80\x80\x80\x80\x80\x80", 5), "\x80\x80\x80\x80\x80");
    EXPECT_EQ(CutToBytes("\xFF\xFF\xFF", 2), "\xFF\xFF");
    EXPECT_EQ(CutToBytes("\xC3"
                         "ab",
                         1),
              "\xC3");
    EXPECT_EQ(CutToBytes("a\xA9"
                         "b",
                         2),
              "a\xA9");
}

TEST(Utf8Test, CutToBytesKeepsACharacterThatEndsWhereForeignBytesBegin) {
    EXPECT_EQ(CutToBytes("\xC3\xA9\xA9", 2), "\xC3\xA9");
}

TEST(Utf8Test, CutToUtf16UnitsCountsSurrogatePairsTwice) {
    EXPECT_EQ(CutToUtf16Units("a\u20AC\U0001F600z", 1), "a");
    EXPECT_EQ(CutToUtf16Units("a\u20AC\U0001F600z", 3), "a\u20AC");
    EXPECT_EQ(CutToUtf16Units("a\u20AC\U0001F600z", 4), "a\u20AC\U0001F600");
    EXPECT_EQ(CutToUtf16Units("a\u20AC\U0001F600z", 5), "a\u20AC\U0001F600z");
    EXPECT_EQ(CutToUtf16Units("\xFF\xC3", 1), "\xFF");
}

TEST(Utf8Test, LeadByteTellsTheLengthOfACharacter) {
    for (const std::string_view character :
         {"\xC0\x80", "\xDF\xBF", "\xE0\x80\x80", "\xEF\xBF\xBF"}) {
        EXPECT_EQ(CutToUtf16Units(character, 1), character);
    }
    for (const std::string_view character : {"\xF0\x80\x80\x80", "\xF7\xBF\xBF\xBF"}) {
        EXPECT_EQ(CutToUtf16Units(character, 2), character);
        EXPECT_EQ(CutToUtf16Units(character, 1), "");
    }
    EXPECT_EQ(CutToUtf16Units("\xBF\x80", 1), "\xBF");
    EXPECT_EQ(CutToUtf16Units("\xF8\x80\x80\x80", 1), "\xF8");
}

TEST(Utf8Test, EqualsIgnoringCaseFoldsLatinLettersOnly) {
    EXPECT_TRUE(EqualsIgnoringCase("version.fia", "VERSION.Fia"));
    EXPECT_FALSE(EqualsIgnoringCase("version.fia", "version.fi"));
    EXPECT_FALSE(EqualsIgnoringCase("[", "{"));
    EXPECT_FALSE(EqualsIgnoringCase("\u00E9", "\u00C9"));
}

}
}
