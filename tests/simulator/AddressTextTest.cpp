#include "simulator/folder/AddressText.h"

#include <gtest/gtest.h>

#include <bit>

namespace simulator {
namespace {

TEST(AddressTextTest, ParseKeepsBytesInMemoryOrder) {
    const auto address = ParseAddress("192.168.0.1");
    ASSERT_TRUE(address);
    EXPECT_EQ((std::bit_cast<std::array<unsigned char, 4>>(*address)),
              (std::array<unsigned char, 4>{192, 168, 0, 1}));
}

TEST(AddressTextTest, ParseTakesTheWholeRange) {
    EXPECT_EQ(ParseAddress("0.0.0.0"), 0u);
    EXPECT_EQ(ParseAddress("255.255.255.255"), 0xFFFFFFFFu);
}

class AddressTextRefusalTest : public testing::TestWithParam<const char*> {};

TEST_P(AddressTextRefusalTest, ParseRefuses) { EXPECT_FALSE(ParseAddress(GetParam())); }

INSTANTIATE_TEST_SUITE_P(, AddressTextRefusalTest,
                         testing::Values("", "1", "1.2.3", "1.2.3.", ".1.2.3", "1..2.3", "1.2.3.4.",
                                         "1.2.3.4.5", "256.0.0.1", "1.2.3.0004", "-1.2.3.4",
                                         "+1.2.3.4", " 1.2.3.4", "1.2.3.4 ", "1,2,3,4", "a.b.c.d",
                                         "0x1.2.3.4"));

}
}
