#include "panel/netconf/KRX10ConfTemplate.h"

#include "tests/support/TemplateRows.h"

#include <gmock/gmock.h>

namespace panel {

namespace {

using support::RowsOf;
using support::TemplateRow;
using testing::ElementsAre;
using enum ControlKind;

TEST(KRX10ConfTemplateTest, DialogHasItsIdTitleAndSize) {
    EXPECT_EQ(kKRX10ConfTemplate.id, 203);
    EXPECT_STREQ(kKRX10ConfTemplate.title, "KRX-10 Configuration");
    EXPECT_EQ(kKRX10ConfTemplate.size, (Size{238, 159}));
}

TEST(KRX10ConfTemplateTest, AddressesAboveMediaAboveTheButtons) {
    EXPECT_THAT(
        RowsOf(kKRX10ConfTemplate),
        ElementsAre(TemplateRow{235, GroupBox, "General", {7, 7, 224, 96}},
                    TemplateRow{248, CheckBox, "&Use DHCP", {14, 19, 100, 10}},
                    TemplateRow{255, Label, "IP address:", {14, 36, 56, 8}},
                    TemplateRow{247, AddressField, "", {74, 34, 110, 13}},
                    TemplateRow{260, Label, "Subnet mask:", {14, 52, 56, 8}},
                    TemplateRow{261, AddressField, "", {74, 50, 110, 13}},
                    TemplateRow{262, Label, "Gateway:", {14, 68, 56, 8}},
                    TemplateRow{263, AddressField, "", {74, 66, 110, 13}},
                    TemplateRow{256, Label, "Description:", {14, 85, 56, 8}},
                    TemplateRow{249, EditField, "", {74, 83, 150, 13}},
                    TemplateRow{252, GroupBox, "Media Formatting", {7, 107, 224, 28}},
                    TemplateRow{250, CheckBox, "Internal Compact Flash", {14, 119, 106, 10}},
                    TemplateRow{251, CheckBox, "PCCard Compact Flash", {122, 119, 104, 10}},
                    TemplateRow{1, DefaultButton, "OK", {127, 140, 50, 14}},
                    TemplateRow{2, Button, "Cancel", {181, 140, 50, 14}}));
}

}

}
