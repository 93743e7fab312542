#include "frontend/help/HelpPage.h"

#include <gtest/gtest.h>

namespace help {

namespace {

using enum HelpParagraph::Kind;
using Page = std::vector<HelpParagraph>;

Page LayOutText(const std::string& text) {
    Page page = LayOut({7, "Title", text});
    EXPECT_EQ(page.front(), (HelpParagraph{Title, {{"Title"}}}));
    page.erase(page.begin());
    return page;
}

TEST(HelpPageTest, LinesOfAParagraphAreJoined) {
    EXPECT_EQ(LayOutText("one\ntwo\n\nthree\n"),
              (Page{{Text, {{"one two"}}}, {Text, {{"three"}}}}));
}

TEST(HelpPageTest, HeadingEndsTheParagraphBeforeIt) {
    EXPECT_EQ(LayOutText("one\n### Keys\ntwo\n"),
              (Page{{Text, {{"one"}}}, {Heading, {{"Keys"}}}, {Text, {{"two"}}}}));
}

TEST(HelpPageTest, LinkBecomesARunOfItsOwn) {
    EXPECT_EQ(LayOutText("see [the menu](topic:1224) and [more](topic:9).\n"),
              (Page{{Text, {{"see "}, {"the menu", 1224}, {" and "}, {"more", 9}, {"."}}}}));
}

TEST(HelpPageTest, BracketsWithoutTopicAreText) {
    EXPECT_EQ(LayOutText("a [b] c\n"), (Page{{Text, {{"a [b] c"}}}}));
}

TEST(HelpPageTest, ItemsKeepTheirMarksAndContinuations) {
    EXPECT_EQ(LayOutText("- one\n  more\n- two\n\n1. first\n12. last\n"),
              (Page{{Item, {{"\xE2\x80\xA2 one more"}}},
                    {Item, {{"\xE2\x80\xA2 two"}}},
                    {Item, {{"1. first"}}},
                    {Item, {{"12. last"}}}}));
}

TEST(HelpPageTest, TableOfTwoColumnsLeavesItsHeadingsOut) {
    EXPECT_EQ(LayOutText("| Column | Content |\n|---|---|\n| Size | [bytes](topic:3) |\n"),
              (Page{{Term, {{"Size"}}}, {Definition, {{"bytes", 3}}}}));
}

TEST(HelpPageTest, TableOfThreeColumnsNamesThem) {
    EXPECT_EQ(
        LayOutText("| Command | Does | Offered |\n|---|---|---|\n| Move | moves | always |\n"),
        (Page{{Term, {{"Move"}}},
              {Definition, {{"Does: moves"}}},
              {Definition, {{"Offered: always"}}}}));
}

TEST(HelpPageTest, TableAfterATableHasItsOwnHeadings) {
    EXPECT_EQ(
        LayOutText("| a | b |\n|---|---|\n| 1 | 2 |\n\n| c | d |\n|---|---|\n| 3 | 4 |\n"),
        (Page{{Term, {{"1"}}}, {Definition, {{"2"}}}, {Term, {{"3"}}}, {Definition, {{"4"}}}}));
}

}

}
