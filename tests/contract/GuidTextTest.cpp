#include "contract/GuidText.h"

#include <gtest/gtest.h>

#include <string_view>

namespace contract {

namespace {

constexpr Guid kGuid{0x0A17B3C0, 0x00BE, 0x0310, {0x0A, 0xA9, 0x6B, 0x0E, 0x8C, 0x0F, 0xA3, 0x0B}};

TEST(GuidTextTest, FormattedWithAllZerosInBraces) {
    EXPECT_EQ(FormatGuid(kGuid), "{0A17B3C0-00BE-0310-0AA9-6B0E8C0FA30B}");
}

TEST(GuidTextTest, ParsedInEitherCase) {
    EXPECT_EQ(ParseGuid("{0A17B3C0-00BE-0310-0AA9-6B0E8C0FA30B}"), kGuid);
    EXPECT_EQ(ParseGuid("{0a17b3c0-00be-0310-0aa9-6b0e8c0fa30b}"), kGuid);
}

TEST(GuidTextTest, AnyOtherFormIsNone) {
    using namespace std::string_view_literals;
    for (const auto text :
         {""sv, "0A17B3C0-00BE-0310-0AA9-6B0E8C0FA30B"sv, "{0A17B3C0-00BE-0310-0AA9-6B0E8C0FA30}"sv,
          "{0A17B3C0-00BE-0310-0AA9-6B0E8C0FA30B} "sv,
          "{0A17B3C0-00BE-0310-0AA9-6B0E8C0FA30B}\0x"sv, "{0A17B3C0-00BE-0310-0AA96-B0E8C0FA30B}"sv,
          "{0A17B3CG-00BE-0310-0AA9-6B0E8C0FA30B}"sv, "{0A17B3C0-00BE-0310-0AA9-6B0E8C0FA30B"sv,
          "QRZ.KRX8Maintenance"sv}) {
        EXPECT_EQ(ParseGuid(text), std::nullopt) << text;
    }
}

}

}
