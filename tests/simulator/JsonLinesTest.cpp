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

TEST(JsonLinesTest, FirstDuplicateIsFoundInTheSameObjectOnly) {
    const CJsonLines lines("{\"a\": {\"x\": 1},\n\"b\": {\"x\": 1,\n\"x\": 2},\n\"a\": 3}");
    EXPECT_EQ(lines.Duplicate(), (JsonPath{"b", "x"}));
    EXPECT_EQ(lines.DuplicateLine(), 3u);
}

TEST(JsonLinesTest, WithoutDuplicateThereIsNone) {
    EXPECT_EQ(CJsonLines("{\"a\": {\"a\": 1}}").DuplicateLine(), 0u);
}

TEST(JsonLinesTest, NamesShowTheWayToAValue) {
    EXPECT_EQ(NameOf({"files", "[3]", "type"}), "files[3].type");
    EXPECT_EQ(NameOf({}), "");
    EXPECT_EQ(QuoteForMessage("a\n\"b\""), "\"a\\n\\\"b\\\"\"");
}

}
}
