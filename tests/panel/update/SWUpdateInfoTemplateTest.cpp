#include "panel/update/SWUpdateInfoTemplate.h"

#include "tests/support/TemplateRows.h"

#include <gmock/gmock.h>

namespace panel {

namespace {

using support::RowsOf;
using support::TemplateRow;
using testing::ElementsAre;
using enum ControlKind;

TEST(SWUpdateInfoTemplateTest, DialogHasItsIdTitleAndSize) {
    EXPECT_EQ(kSWUpdateInfoTemplate.id, 202);
    EXPECT_STREQ(kSWUpdateInfoTemplate.title, "Programming Device's SW Update");
    EXPECT_EQ(kSWUpdateInfoTemplate.size, (Size{206, 100}));
}

TEST(SWUpdateInfoTemplateTest, MessageAboveVersionsAboveTheQuestion) {
    EXPECT_THAT(RowsOf(kSWUpdateInfoTemplate),
                ElementsAre(TemplateRow{270, Icon, "", {7, 10, 20, 20}},
                            TemplateRow{239, CentredLabel, "<info>", {32, 8, 167, 26}},
                            TemplateRow{240, Label, "Flash Update Version:", {32, 40, 84, 8}},
                            TemplateRow{241, Label, "", {118, 40, 81, 8}},
                            TemplateRow{242, Label, "Device's SW Version:", {32, 52, 84, 8}},
                            TemplateRow{243, Label, "", {118, 52, 81, 8}},
                            TemplateRow{271,
                                        Label,
                                        "Would you like to update the Programming Device now?",
                                        {14, 66, 185, 8}},
                            TemplateRow{6, DefaultButton, "&Yes", {48, 80, 50, 14}},
                            TemplateRow{7, Button, "&No", {108, 80, 50, 14}}));
}

}

}
