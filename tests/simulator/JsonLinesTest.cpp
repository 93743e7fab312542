#include "simulator/folder/JsonLines.h"

#include <gtest/gtest.h>

namespace simulator {
namespace {

TEST(JsonLinesTest, ValuesOfEachKindHaveTheirLines) {
    const CJsonLines lines("{\n"
                           "\"text\": \"x\",\n"
                           "\"flag\": true,\n"
                           "\"none\": null,\n"
                           "\"object\": {\n"
                           "  \"inner\": false } }");
    EXPECT_EQ(lines.LineOf({}), 1u);
    EXPECT_EQ(lines.LineOf({"text"}), 2u);
    EXPECT_EQ(lines.LineOf({"flag"}), 3u);
    EXPECT_EQ(lines.LineOf({"none"}), 4u);
    EXPECT_EQ(lines.LineOf({"object"}), 5u);
    EXPECT_EQ(lines.LineOf({"object", "inner"}), 6u);
}

TEST(JsonLinesTest, NumbersAtLineEndsStayOnTheirLine) {
    const CJsonLines lines("[\n1\n,\n-2.5e3\n,\n3\n]");
    EXPECT_EQ(lines.LineOf({"[0]"}), 2u);
    EXPECT_EQ(lines.LineOf({"[1]"}), 4u);
    EXPECT_EQ(lines.LineOf({"[2]"}), 6u);
}

TEST(JsonLinesTest, ValueBelowItsKeyHasItsOwnLine) {
    EXPECT_EQ(CJsonLines("{\"key\":\n\n\"value\"}").LineOf({"key"}), 3u);
}

TEST(JsonLinesTest, ElementsOfNestedListsAreCounted) {
    const CJsonLines lines("{\"a\": [[0],\n[1, {\n\"b\": 2}]]}");
    EXPECT_EQ(lines.LineOf({"a", "[1]", "[0]"}), 2u);
    EXPECT_EQ(lines.LineOf({"a", "[1]", "[1]", "b"}), 3u);
}

TEST(JsonLinesTest, CarriageReturnsAreNoLines) {
    EXPECT_EQ(CJsonLines("{\r\n\"a\":\r\n1}").LineOf({"a"}), 3u);
}

TEST(JsonLinesTest, UnknownPathHasNoLine) { EXPECT_EQ(CJsonLines("{}").LineOf({"a"}), 0u); }

TEST(JsonLinesTest, PathPastAValueHasNoLine) {
    EXPECT_EQ(CJsonLines("{\"a\": 1}").LineOf({"a", "b", "c"}), 0u);
}

TEST(JsonLinesTest, MembersOfLikeNameKeepTheirOwnLines) {
    const CJsonLines lines("{\"a\": {\"x\": 1},\n\"b\": {\"x\": 2},\n\"x\": 3}");
    EXPECT_EQ(lines.LineOf({"a", "x"}), 1u);
    EXPECT_EQ(lines.LineOf({"b", "x"}), 2u);
    EXPECT_EQ(lines.LineOf({"x"}), 3u);
}

TEST(JsonLinesTest, GoodTextHasNoMistake) {
    EXPECT_EQ(CJsonLines("{\"a\": {\"a\": [1, 2.5]}}").Mistake(), std::nullopt);
}

TEST(JsonLinesTest, NamesShowTheWayToAValue) {
    EXPECT_EQ(QuotedNameOf({"files", "[3]", "type"}), "\"files[3].type\"");
    EXPECT_EQ(QuotedNameOf({"a\n\"b\""}), "\"a\\n\\\"b\\\"\"");
    EXPECT_EQ(QuotedNameOf({}), "the description");
}

/// A text and its first mistake.
struct MistakenText {
    const char* name;
    std::string text;
    std::size_t line;
    const char* reason;

    friend void PrintTo(const MistakenText& mistaken, std::ostream* stream) {
        *stream << mistaken.text;
    }
};

class JsonMistakeTest : public testing::TestWithParam<MistakenText> {};

TEST_P(JsonMistakeTest, IsFound) {
    const auto mistake = CJsonLines(GetParam().text).Mistake();
    ASSERT_TRUE(mistake);
    EXPECT_EQ(mistake->reason, GetParam().reason);
    EXPECT_EQ(mistake->line, GetParam().line);
}

const MistakenText kMistakenTexts[] = {
    {"Duplicate", "{\"a\": {\"x\": 1},\n\"b\": {\"x\": 1,\n\"x\": 2},\n\"a\": 3}", 3,
     "\"b.x\" is given twice"},
    {"DuplicateAfterAnObject", "{\"a\": {\"x\": {}},\n\"a\": 3}", 2, "\"a\" is given twice"},
    {"DuplicateBeforeBadSyntax", "{\"a\": 1,\n\"a\": 2,\n!", 2, "\"a\" is given twice"},
    {"SyntaxBeforeDuplicate", "{!\n\"a\": 1, \"a\": 2}", 1,
     "is not valid JSON: syntax error while parsing object key - invalid literal; expected string "
     "literal"},
    {"EndBelowTheLastLine", "{\n\"a\": 1\n", 3,
     "is not valid JSON: syntax error while parsing object - unexpected end of input; expected "
     "'}'"},
    {"TextAfterTheEnd", "{}\n{}", 2,
     "is not valid JSON: syntax error while parsing value - unexpected '{'; expected end of input"},
    {"TextThatLooksLikeTheMessage", "[\"; last read: ' ; expected \xC2\x9B\xFF\"]", 1,
     "is not valid JSON: syntax error while parsing value - invalid string: ill-formed UTF-8 "
     "byte"},
    {"NumberTooLarge", "{\"a\": [1, 2,\n1.7e308, 1.8e308\n]}", 2, "\"a[3]\" is too large a number"},
    {"DigitsTooMany", "[" + std::string(400, '9') + "]", 1, "\"[0]\" is too large a number"},
    {"ListsTooDeep", "[[[[[[[[\n[]]]]]]]]]", 2,
     "\"[0][0][0][0][0][0][0][0]\" is nested too deeply: 8 levels are the most"},
    {"ObjectTooDeep", "[[[[[[[{\"a\":\n{}}]]]]]]]", 2,
     "\"[0][0][0][0][0][0][0].a\" is nested too deeply: 8 levels are the most"},
};

INSTANTIATE_TEST_SUITE_P(, JsonMistakeTest, testing::ValuesIn(kMistakenTexts),
                         [](const auto& text) { return text.param.name; });

}
}
