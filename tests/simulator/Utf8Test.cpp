#include "simulator/folder/Utf8.h"

#include <gtest/gtest.h>

namespace simulator {
namespace {

TEST(Utf8Test, CharactersOfEachLengthAreTaken) {
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8("a\x7F"));
    EXPECT_TRUE(IsUtf8("\xC2\x80\xDF\xBF"));
    EXPECT_TRUE(IsUtf8("\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"));
    EXPECT_TRUE(IsUtf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
}

TEST(Utf8Test, OverlongFormsAndSurrogatesAreRefused) {
    for (const auto* text :
         {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
          "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80"}) {
        EXPECT_FALSE(IsUtf8(text)) << text;
    }
}

TEST(Utf8Test, CharactersAreCountedAsInUtf16) {
    EXPECT_EQ(CharactersOf(""), 0u);
    EXPECT_EQ(CharactersOf("az"), 2u);
    EXPECT_EQ(CharactersOf("\u00DF\u20AC\uFFFD"), 3u);
    EXPECT_EQ(CharactersOf("\U00010000\U0010FFFF"), 4u);
}

TEST(Utf8Test, PartsOfCharactersAreRefused) {
    for (const auto* text : {"\x80", "a\xBF", "\xC3", "\xE2\x82", "\xE2\x82q", "\xF0\x9F\x98",
                             "\xF0\x9F\x98q", "\xC3q", "\xFF"}) {
        EXPECT_FALSE(IsUtf8(text)) << text;
    }
}

}
}
