#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

class FocusTest : public ConformanceTest {};

TEST_F(FocusTest, SetFocusGivesTheFocus) {
    Show();
    View().SetFocus(kFirstButton);
    EXPECT_EQ(View().GetFocus(), kFirstButton);
    View().SetFocus(kManyList);
    EXPECT_EQ(View().GetFocus(), kManyList);
}

TEST_F(FocusTest, SetFocusDuringInitHoldsWhenShown) {
    m_handler.onInit = [](panel::IView& view) { view.SetFocus(kSecondButton); };
    Show();
    EXPECT_EQ(View().GetFocus(), kSecondButton);
}

TEST_F(FocusTest, DisabledControlIsNextToGetTheFocus) {
    Show();
    View().SetFocus(kDisabledButton);
    EXPECT_EQ(View().GetFocus(), kDisabledButton);
}

TEST_F(FocusTest, DisabledControlGetsTheFocusWhenEnabled) {
    Show();
    View().SetFocus(kFirstButton);
    View().SetFocus(kDisabledButton);
    View().SetEnabled(kDisabledButton, true);
    User().PressTab();
    EXPECT_EQ(View().GetFocus(), kSecondButton);
}

TEST_F(FocusTest, DisabledControlYieldsToALaterFocus) {
    Show();
    View().SetFocus(kDisabledButton);
    View().SetFocus(kFirstButton);
    View().SetEnabled(kDisabledButton, true);
    EXPECT_EQ(View().GetFocus(), kFirstButton);
}

TEST_F(FocusTest, DisabledControlYieldsToTheUsersClick) {
    Show();
    View().SetFocus(kDisabledButton);
    User().Press(kFirstButton);
    View().SetEnabled(kDisabledButton, true);
    EXPECT_EQ(View().GetFocus(), kFirstButton);
}

TEST_F(FocusTest, DisabledListGetsTheFocusWhenEnabled) {
    Show();
    View().SetFocus(kDisabledList);
    View().SetEnabled(kDisabledList, true);
    EXPECT_EQ(View().GetFocus(), kDisabledList);
}

TEST_F(FocusTest, SetFocusOfMissingControlChangesNothing) {
    Show();
    View().SetFocus(kFirstButton);
    View().SetFocus(kMissing);
    View().SetFocus(panel::kNoControl);
    EXPECT_EQ(View().GetFocus(), kFirstButton);
}

TEST_F(FocusTest, ClicksGiveTheFocus) {
    Show();
    FillList(kManyList, 3);
    EXPECT_TRUE(User().Press(kSecondButton));
    EXPECT_EQ(View().GetFocus(), kSecondButton);
    EXPECT_TRUE(User().ClickRow(kManyList, 1));
    EXPECT_EQ(View().GetFocus(), kManyList);
}

TEST_F(FocusTest, TabFollowsTheTemplateAndSkipsUnusableControls) {
    Show();
    FillList(kManyList, 3);
    View().SetFocus(kManyList);
    std::vector<panel::ControlId> order;
    for (int step = 0; step < 11; ++step) {
        User().PressTab();
        order.push_back(View().GetFocus());
    }
    const std::vector<panel::ControlId> expected = {kOneList, kLog,     kFirstButton, kSecondButton,
                                                    kEdit,    kAddress, kCheck,       kChoices,
                                                    kField,   kNumber,  kManyList};
    EXPECT_EQ(order, expected);
}

TEST_F(FocusTest, HelpRequestCarriesContextOfTheFocusedControl) {
    Show();
    for (panel::ControlId id : {kField, kManyList, kFirstButton, kAddress}) {
        View().SetFocus(id);
        User().RequestHelp();
    }
    EXPECT_EQ(m_handler.events, (Events{"help 77", "help 78", "help 79", "help 80"}));
}

TEST_F(FocusTest, HelpRequestOnControlWithoutContextCarriesZero) {
    Show();
    View().SetFocus(kSecondButton);
    User().RequestHelp();
    EXPECT_EQ(m_handler.events, Events{"help 0"});
}

}

}
