#include "frontend/headless/Utf8.h"

#include <gtest/gtest.h>

namespace {

using headless::CountCharacters;
using headless::ToShownText;

#define REPLACEMENT "\xEF\xBF\xBD"

TEST(Utf8Test, WellFormedTextIsShownAsItIs) {
    const char* text = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\xA7\xF4\x8F\xBF\xBF\xEE\x80\x80z";
    EXPECT_EQ(ToShownText(text), text);
}

TEST(Utf8Test, StrayBytesAreReplacedOneByOne) {
    EXPECT_EQ(ToShownText("a\xFF\x80z"), "a" REPLACEMENT REPLACEMENT "z");
}

TEST(Utf8Test, CharacterCutAtTheEndIsReplaced) {
    EXPECT_EQ(ToShownText("a\xE2\x82"), "a" REPLACEMENT REPLACEMENT);
}

TEST(Utf8Test, CharacterCutBeforeAnotherLeavesTheOther) {
    EXPECT_EQ(ToShownText("\xC3(x"), REPLACEMENT "(x");
    EXPECT_EQ(ToShownText("\xF0\x9F\xC3\xA4"), REPLACEMENT REPLACEMENT "\xC3\xA4");
}

TEST(Utf8Test, OverlongFormsSurrogatesAndTooGreatValuesAreReplaced) {
    EXPECT_EQ(ToShownText("\xC0\xAF"), REPLACEMENT REPLACEMENT);
    EXPECT_EQ(ToShownText("\xE0\x80\x80"), REPLACEMENT REPLACEMENT REPLACEMENT);
    EXPECT_EQ(ToShownText("\xED\xA0\x80"), REPLACEMENT REPLACEMENT REPLACEMENT);
    EXPECT_EQ(ToShownText("\xF4\x90\x80\x80"), REPLACEMENT REPLACEMENT REPLACEMENT REPLACEMENT);
}

TEST(Utf8Test, CharactersAreCountedNotBytes) {
    EXPECT_EQ(CountCharacters(""), 0u);
    EXPECT_EQ(CountCharacters("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\xA7"), 4u);
}

}
