#include "panel/control/VersionNumber.h"

#include <gtest/gtest.h>

#include <string>

namespace panel {
namespace {

using Numbers = VersionNumber;

struct ParseCase {
    const char* text;
    Numbers numbers;
};

class ParseVersionTest : public testing::TestWithParam<ParseCase> {};

TEST_P(ParseVersionTest, ReadsNumbersUpToTheFirstForeignCharacter) {
    EXPECT_EQ(ParseVersion(GetParam().text), GetParam().numbers) << "\"" << GetParam().text << '"';
}

INSTANTIATE_TEST_SUITE_P(Texts, ParseVersionTest,
                         testing::Values(ParseCase{"", {}}, ParseCase{"2.10.4", {2, 10, 4}},
                                         ParseCase{"1..2", {1, 0, 2}}, ParseCase{"1.", {1, 0}},
                                         ParseCase{"abc", {0}}, ParseCase{"abc.5", {0}},
                                         ParseCase{"1.2a", {1, 2}}, ParseCase{"1.2a.3", {1, 2}},
                                         ParseCase{" 7. 8", {7, 8}}, ParseCase{"\t-3.+4", {-3, 4}},
                                         ParseCase{"\n\r7.\v\f8", {7, 8}}, ParseCase{"-.5", {0}},
                                         ParseCase{" .5", {0}}, ParseCase{".5", {0, 5}},
                                         ParseCase{"007", {7}}));

TEST(VersionNumberTest, ParseSaturatesAtThirtyTwoBits) {
    EXPECT_EQ(ParseVersion("2147483647.2147483648"), (Numbers{2147483647, 2147483647}));
    EXPECT_EQ(ParseVersion("-2147483648.-2147483649"), (Numbers{-2147483647 - 1, -2147483647 - 1}));
    EXPECT_EQ(ParseVersion("99999999999999999999999"), (Numbers{2147483647}));
}

struct CompareCase {
    const char* a;
    const char* b;
    int order;
};

class CompareVersionsTest : public testing::TestWithParam<CompareCase> {};

TEST_P(CompareVersionsTest, OrdersByNumberThenByLength) {
    EXPECT_EQ(CompareVersions(GetParam().a, GetParam().b), GetParam().order);
    EXPECT_EQ(CompareVersions(GetParam().b, GetParam().a), -GetParam().order);
}

INSTANTIATE_TEST_SUITE_P(Pairs, CompareVersionsTest,
                         testing::Values(CompareCase{"1.10", "1.9", 1}, CompareCase{"2", "2.0", -1},
                                         CompareCase{"001.002.000", "001.002", 1},
                                         CompareCase{"1.2.3", "001.002.003", 0},
                                         CompareCase{"", "", 0}, CompareCase{"", "0", -1},
                                         CompareCase{"-1", "0", -1}));

TEST(VersionNumberTest, FormatPadsEachNumberToThreeDigits) {
    EXPECT_EQ(FormatVersion({7}, 80), "007");
    EXPECT_EQ(FormatVersion({1, 2, 30}, 80), "001.002.030");
    EXPECT_EQ(FormatVersion({1234, -5}, 80), "1234.-005");
    EXPECT_EQ(FormatVersion({}, 80), "");
}

TEST(VersionNumberTest, FormatStopsWhereTheBufferIsFull) {
    const std::string full = FormatVersion(Numbers(100, 1), 80);
    EXPECT_EQ(full.size(), 79u);
    EXPECT_EQ(full.substr(76), "001");
    EXPECT_EQ(FormatVersion({1, 2}, 6), "001.0");
    EXPECT_EQ(FormatVersion({1, 2}, 1), "");
    EXPECT_EQ(FormatVersion({1, 2}, 0), "");
}

}
}
