#include "frontend/qt/FileFilters.h"

#include <gtest/gtest.h>

namespace qttests {

namespace {

TEST(FileFiltersTest, PatternStandsInBracketsBehindTheDescription) {
    EXPECT_EQ(qt::ToNameFilters({{"Fpga files (*.bin)", "*.bin"}, {"Reports", "*.txt"}}),
              (QStringList{"Fpga files (*.bin) (*.bin)", "Reports (*.txt)"}));
}

TEST(FileFiltersTest, AllFilesIncludeThoseWithoutADot) {
    EXPECT_EQ(qt::ToNameFilters({{"All files (*.*)", "*.*"}}), QStringList{"All files (*.*) (*)"});
}

TEST(FileFiltersTest, MissingPatternShowsAllFiles) {
    EXPECT_EQ(qt::ToNameFilters({{"Everything", ""}}), QStringList{"Everything (*)"});
}

TEST(FileFiltersTest, SeveralPatternsAreKept) {
    EXPECT_EQ(qt::ToNameFilters({{"Code", "*.bin;*.hex; *.fia"}}),
              QStringList{"Code (*.bin *.hex *.fia)"});
}

TEST(FileFiltersTest, BlanksAroundAPatternDoNotCount) {
    EXPECT_EQ(qt::ToNameFilters({{"Code", "*.bin; *.* "}}), QStringList{"Code (*.bin *)"});
    EXPECT_EQ(qt::ToNameFilters({{"Everything", " ; "}}), QStringList{"Everything (*)"});
}

TEST(FileFiltersTest, PercentSignsStayAsTheyAre) {
    EXPECT_EQ(qt::ToNameFilters({{"100 %1 %2", "*.a"}}), QStringList{"100 %1 %2 (*.a)"});
}

}

}
