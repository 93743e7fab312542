#include "panel/selftest/SelfTestTable.h"

#include <gtest/gtest.h>

#include <set>

namespace panel {
namespace {

TEST(SelfTestTableTest, RowsStandInDisplayOrderWithTheirPositions) {
    struct Expected {
        const char* label;
        int position;
    };
    const Expected expected[] = {{"Application SW", 3},
                                 {"Boot code", 4},
                                 {"EEPROM", 9},
                                 {"Ethernet", 18},
                                 {"External Flash", 7},
                                 {"External RAM", 6},
                                 {"Flash", 12},
                                 {"FPGA", 21},
                                 {"FPGA Code", 1},
                                 {"FPGA Load", 2},
                                 {"USB Host Controller", 16},
                                 {"MCUSW", 11},
                                 {"MMCR driver", 14},
                                 {"ZTWCDC driver", 17},
                                 {"Paged Flash", 8},
                                 {"Paged RAM", 13},
                                 {"RAM", 5},
                                 {"RS-232", 20},
                                 {"Secondary and Algorithm files", 10},
                                 {"USB", 19},
                                 {"USB Device Function", 15}};
    const auto rows = SelfTestRows();
    ASSERT_EQ(rows.size(), 21u);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_STREQ(rows[i].label, expected[i].label);
        EXPECT_EQ(static_cast<int>(rows[i].test), expected[i].position) << rows[i].label;
    }
}

struct ResultCase {
    int code;
    const char* text;
    bool hasPassed;
};

class DescribeResultTest : public testing::TestWithParam<ResultCase> {};

TEST_P(DescribeResultTest, CodeHasItsTextAndVerdict) {
    const SelfTestResult result = DescribeResult(GetParam().code);
    EXPECT_EQ(result.text, GetParam().text);
    EXPECT_EQ(result.hasPassed, GetParam().hasPassed);
}

INSTANTIATE_TEST_SUITE_P(
    Codes, DescribeResultTest,
    testing::Values(
        ResultCase{0, "OK", true}, ResultCase{1, "Failed", false}, ResultCase{2, "Ignored", true},
        ResultCase{787, "Not run", true}, ResultCase{788, "File missing", false},
        ResultCase{789, "File invalid", false}, ResultCase{790, "Certificate missing", false},
        ResultCase{791, "Certificate invalid", false},
        ResultCase{792, "Authentication failed", false}, ResultCase{793, "Flash not found", false},
        ResultCase{794, "Flash not usable", false}, ResultCase{795, "Driver failed", false},
        ResultCase{809, "Public Key failed", false}, ResultCase{812, "Media not found", false},
        ResultCase{813, "Media not supported", false}, ResultCase{814, "Media not usable", false},
        ResultCase{796, "unknown result", false}, ResultCase{3, "unknown result", false},
        ResultCase{-1, "unknown result", false}));

}
}
