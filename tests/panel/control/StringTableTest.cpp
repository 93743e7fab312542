#include "panel/control/StringTable.h"

#include <gtest/gtest.h>

namespace panel {
namespace {

std::string Text(int id) { return LoadPanelString(static_cast<StringId>(id)); }

TEST(StringTableTest, TextsStandAsTheUserKnowsThem) {
    EXPECT_EQ(Text(113), "Some tests failed");
    EXPECT_EQ(Text(114), "TEST OK");
    EXPECT_EQ(Text(166), "Prommer Maintenance");
    EXPECT_EQ(Text(167), "A fatal error has occured, please restart Halcyon and try again.");
    EXPECT_EQ(Text(194), "Cannot get self-test results");
    EXPECT_EQ(
        Text(196),
        "The Programming Device is not in Normal mode and therefore some information about "
        "the Programming Device can be incorrect.\n\nThis can be a result of invalid or broken "
        "software of the Programming Device. Please, update the Programming Device");
}

TEST(StringTableTest, UnknownIdGivesEmptyText) {
    EXPECT_EQ(Text(0), "");
    EXPECT_EQ(Text(99), "");
    EXPECT_EQ(Text(205), "");
}

}
}
