#include "simulator/device/VersionText.h"

#include <gtest/gtest.h>

namespace simulator {
namespace {

TEST(VersionTextTest, OnlyNumbersAndDotsAreVersions) {
    for (const auto* text : {"1", "1.2", "10.0.07"}) {
        EXPECT_TRUE(IsVersion(text)) << text;
    }
    for (const auto* text : {"", ".", "1.", ".1", "1..2", "1.2a", "v1", "-1", " 1"}) {
        EXPECT_FALSE(IsVersion(text)) << text;
    }
}

TEST(VersionTextTest, NewerIsByNumberNotByLetter) {
    EXPECT_TRUE(IsNewer("2.10", "2.9"));
    EXPECT_TRUE(IsNewer("2.10.1", "2.10"));
    EXPECT_TRUE(IsNewer("1", ""));
    EXPECT_TRUE(IsNewer("99999999999", "4294967294"));
    EXPECT_FALSE(IsNewer("2.10.0", "2.10"));
    EXPECT_FALSE(IsNewer("2.010", "2.10"));
    EXPECT_FALSE(IsNewer("2.9", "2.10"));
    EXPECT_FALSE(IsNewer("", "0"));
}

TEST(VersionTextTest, LastVersionOfANameIsFound) {
    EXPECT_EQ(LastVersionIn("fpga-2_v4.08"), "4.08");
    EXPECT_EQ(LastVersionIn("app1.2.3-final"), "1.2.3");
    EXPECT_EQ(LastVersionIn("7"), "7");
    EXPECT_EQ(LastVersionIn("a..5"), "5");
    EXPECT_EQ(LastVersionIn("1..5"), "5");
    EXPECT_EQ(LastVersionIn("none"), "");
    EXPECT_EQ(LastVersionIn(""), "");
}

}
}
