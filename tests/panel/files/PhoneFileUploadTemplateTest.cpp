#include "panel/files/PhoneFileUploadTemplate.h"

#include "tests/support/TemplateRows.h"

#include <gmock/gmock.h>

namespace panel {

namespace {

using support::RowsOf;
using support::TemplateRow;
using testing::ElementsAre;
using enum ControlKind;

TEST(PhoneFileUploadTemplateTest, DialogHasItsIdTitleAndSize) {
    EXPECT_EQ(kPhoneFileUploadTemplate.id, 116);
    EXPECT_STREQ(kPhoneFileUploadTemplate.title, "");
    EXPECT_EQ(kPhoneFileUploadTemplate.size, (Size{133, 39}));
}

TEST(PhoneFileUploadTemplateTest, TwoListsBesideTheirLabels) {
    EXPECT_THAT(RowsOf(kPhoneFileUploadTemplate),
                ElementsAre(TemplateRow{264, Label, "Method:", {4, 6, 44, 8}},
                            TemplateRow{265, DropDownList, "", {52, 4, 77, 14}},
                            TemplateRow{266, Label, "Destination:", {4, 23, 44, 8}},
                            TemplateRow{267, DropDownList, "", {52, 21, 77, 14}}));
}

}

}
