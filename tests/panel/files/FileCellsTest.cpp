#include "panel/files/FileCells.h"

#include <gtest/gtest.h>

#include <string>

namespace panel {
namespace {

std::string Location(std::int32_t location) {
    CellBuffer buffer;
    return std::string(FileLocationText(location, buffer));
}

std::string Generation(std::uint32_t generation) {
    CellBuffer buffer;
    return std::string(FileGenerationText(generation, buffer));
}

TEST(FileCellsTest, ColumnsStandInOrderWithWidthAndAlignment) {
    struct Expected {
        const char* heading;
        int width;
        Alignment alignment;
    };
    const Expected expected[] = {
        {"File name", 120, Alignment::Left}, {"Type", 55, Alignment::Left},
        {"File ID", 44, Alignment::Right},   {"Version", 80, Alignment::Left},
        {"Size (B)", 80, Alignment::Right},  {"Location", 55, Alignment::Left},
        {"Generation", 55, Alignment::Left}};
    const auto columns = FileColumns();
    ASSERT_EQ(columns.size(), 7u);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        EXPECT_STREQ(columns[i].heading, expected[i].heading);
        EXPECT_EQ(columns[i].widthPixels, expected[i].width);
        EXPECT_EQ(columns[i].alignment, expected[i].alignment);
    }
}

TEST(FileCellsTest, TypesHaveNamesAndOthersAreUnknown) {
    EXPECT_EQ(FileTypeText(19), "Sec.boot");
    EXPECT_EQ(FileTypeText(21), "Algo");
    EXPECT_EQ(FileTypeText(22), "MCUSW");
    EXPECT_EQ(FileTypeText(20), "unknown");
    EXPECT_EQ(FileTypeText(0), "unknown");
    EXPECT_EQ(FileTypeText(-1), "unknown");
}

TEST(FileCellsTest, LocationsHaveNamesAndOthersAreUnsignedNumbers) {
    EXPECT_EQ(Location(1), "RAM");
    EXPECT_EQ(Location(2), "Flash");
    EXPECT_EQ(Location(3), "PCCard");
    EXPECT_EQ(Location(0), "0");
    EXPECT_EQ(Location(7), "7");
    EXPECT_EQ(Location(-1), "4294967295");
}

TEST(FileCellsTest, GenerationsHaveNamesAndOthersAreNumbers) {
    EXPECT_EQ(Generation(0), "");
    EXPECT_EQ(Generation(1), "1");
    EXPECT_EQ(Generation(2), "2");
    EXPECT_EQ(Generation(3), "QX1");
    EXPECT_EQ(Generation(4), "QX2");
    EXPECT_EQ(Generation(5), "QX3");
    EXPECT_EQ(Generation(6), "6");
    EXPECT_EQ(Generation(4294967295u), "4294967295");
}

TEST(FileCellsTest, NumbersAreSignedDecimalWithoutSeparators) {
    CellBuffer buffer;
    EXPECT_EQ(NumberText(0, buffer), "0");
    EXPECT_EQ(NumberText(1234567, buffer), "1234567");
    EXPECT_EQ(NumberText(2147483647, buffer), "2147483647");
    EXPECT_EQ(NumberText(-2147483647 - 1, buffer), "-2147483648");
}

}
}
