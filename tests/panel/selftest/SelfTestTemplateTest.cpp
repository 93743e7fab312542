#include "panel/selftest/SelfTestTemplate.h"

#include "tests/support/TemplateRows.h"

#include <gmock/gmock.h>

namespace panel {

namespace {

using support::RowsOf;
using support::TemplateRow;
using testing::ElementsAre;
using enum ControlKind;

TEST(SelfTestTemplateTest, DialogHasItsIdTitleAndSize) {
    EXPECT_EQ(kSelfTestTemplate.id, 201);
    EXPECT_STREQ(kSelfTestTemplate.title, "Startup Self-test statuses");
    EXPECT_EQ(kSelfTestTemplate.size, (Size{198, 238}));
}

TEST(SelfTestTemplateTest, ListAboveTheButtons) {
    EXPECT_THAT(
        RowsOf(kSelfTestTemplate),
        ElementsAre(TemplateRow{236, SingleSelectList, "", {7, 7, 184, 202}},
                    TemplateRow{1, DefaultButton, "OK", {74, 217, 50, 14}},
                    TemplateRow{2, Button, "Cancel", {141, 217, 50, 14}, InitialState::Hidden}));
}

}

}
