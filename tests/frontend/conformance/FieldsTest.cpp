#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

using panel::kNoChoice;
using panel::StandardIcon;

using Texts = std::vector<std::string>;

class FieldsTest : public ConformanceTest {
protected:
    void SetUp() override { Show(); }
};

// Edit field

TEST_F(FieldsTest, TypedTextReplacesWhatWasSet) {
    View().SetText(kEdit, "office");
    EXPECT_TRUE(User().TypeText(kEdit, "store"));
    EXPECT_EQ(View().GetText(kEdit), "store");
    EXPECT_EQ(User().ShownText(kEdit), "store");
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(FieldsTest, TypedTextIsCutToItsLimit) {
    View().SetTextLimit(kEdit, 5);
    EXPECT_TRUE(User().TypeText(kEdit, "1234567"));
    EXPECT_EQ(View().GetText(kEdit), "12345");
}

TEST_F(FieldsTest, LimitCountsUtf16UnitsAndHalvesNoCharacter) {
    View().SetTextLimit(kEdit, 5);
    EXPECT_TRUE(User().TypeText(kEdit, "\xC3\xA4\xC3\xB6\xC3\xBC.\xF0\x9F\x94\xA7"));
    EXPECT_EQ(View().GetText(kEdit), "\xC3\xA4\xC3\xB6\xC3\xBC.");
}

TEST_F(FieldsTest, LimitLeavesWhatTheProgramSets) {
    View().SetText(kEdit, "before the limit");
    View().SetTextLimit(kEdit, 5);
    EXPECT_EQ(View().GetText(kEdit), "before the limit");
    View().SetText(kEdit, "after the limit");
    EXPECT_EQ(View().GetText(kEdit), "after the limit");
}

TEST_F(FieldsTest, DisabledEditFieldCannotBeTypedInto) {
    View().SetEnabled(kEdit, false);
    EXPECT_FALSE(User().TypeText(kEdit, "text"));
    EXPECT_EQ(View().GetText(kEdit), "");
}

TEST_F(FieldsTest, ReadOnlyTextsKeepWhatIsThereWhateverIsTyped) {
    View().SetText(kNumber, "1048576");
    View().AppendLog(kLog, "line\r\n");
    for (const panel::ControlId id : {kField, kNumber, kLog}) {
        User().TypeText(id, "7");
    }
    EXPECT_EQ(User().ShownText(kField), "initial");
    EXPECT_EQ(User().ShownText(kNumber), "1048576");
    EXPECT_EQ(User().ShownText(kLog), "line\r\n");
    EXPECT_EQ(m_handler.events, Events{});
}

// Check box

TEST_F(FieldsTest, CheckBoxIsClearAtFirst) {
    EXPECT_FALSE(View().IsChecked(kCheck));
    EXPECT_FALSE(User().IsShownChecked(kCheck));
}

TEST_F(FieldsTest, SetCheckedShowsItAndSendsNothing) {
    View().SetChecked(kCheck, true);
    EXPECT_TRUE(View().IsChecked(kCheck));
    EXPECT_TRUE(User().IsShownChecked(kCheck));
    View().SetChecked(kCheck, false);
    EXPECT_FALSE(User().IsShownChecked(kCheck));
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(FieldsTest, ToggleSendsTheCommandOnceChanged) {
    std::vector<bool> states;
    m_handler.onCommand = [&](panel::ControlId id) { states.push_back(View().IsChecked(id)); };
    EXPECT_TRUE(User().Toggle(kCheck));
    EXPECT_TRUE(User().Toggle(kCheck));
    EXPECT_EQ(states, (std::vector<bool>{true, false}));
    EXPECT_EQ(m_handler.events, (Events{"command 317", "command 317"}));
}

TEST_F(FieldsTest, DisabledCheckBoxCannotBeToggled) {
    View().SetEnabled(kCheck, false);
    EXPECT_FALSE(User().Toggle(kCheck));
    EXPECT_FALSE(View().IsChecked(kCheck));
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(FieldsTest, ViewMayBeDestroyedInsideItsToggle) {
    m_handler.onCommand = [this](panel::ControlId) { m_view.reset(); };
    EXPECT_TRUE(User().Toggle(kCheck));
    EXPECT_EQ(m_view, nullptr);
}

TEST_F(FieldsTest, ViewMayBeDestroyedInABoxOfItsToggle) {
    m_handler.onCommand = [this](panel::ControlId) { LoseViewInABox(); };
    EXPECT_TRUE(User().Toggle(kCheck));
    EXPECT_EQ(m_handler.events, Events{"command 317"});
    EXPECT_EQ(m_driver->Boxes().size(), 2u);
}

// Address field

TEST_F(FieldsTest, AddressIsZeroAtFirst) { EXPECT_EQ(View().GetAddress(kAddress), 0u); }

TEST_F(FieldsTest, AddressSetIsReadBack) {
    for (const std::uint32_t address : {0xC0A80001u, 0xFFFFFFFFu, 0x0000000Au, 0u}) {
        View().SetAddress(kAddress, address);
        EXPECT_EQ(View().GetAddress(kAddress), address);
    }
}

TEST_F(FieldsTest, AddressTypedReplacesTheOneSet) {
    View().SetAddress(kAddress, 0x01020304);
    EXPECT_TRUE(User().TypeAddress(kAddress, 0xC0A80114));
    EXPECT_EQ(View().GetAddress(kAddress), 0xC0A80114u);
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(FieldsTest, AddressOfSmallNumbersCanBeTyped) {
    EXPECT_TRUE(User().TypeAddress(kAddress, 0x0A000701));
    EXPECT_EQ(View().GetAddress(kAddress), 0x0A000701u);
}

TEST_F(FieldsTest, DisabledAddressCannotBeTypedButIsKept) {
    View().SetAddress(kAddress, 0x01020304);
    View().SetEnabled(kAddress, false);
    EXPECT_FALSE(View().IsEnabled(kAddress));
    EXPECT_FALSE(User().TypeAddress(kAddress, 5));
    EXPECT_EQ(View().GetAddress(kAddress), 0x01020304u);
}

// Drop-down list

TEST_F(FieldsTest, DropDownListHasNothingChosenAtFirst) {
    EXPECT_EQ(View().AddChoice(kChoices, "RAM", 1), 0);
    EXPECT_EQ(View().AddChoice(kChoices, "Flash", 2), 1);
    EXPECT_EQ(View().GetSelectedChoice(kChoices), kNoChoice);
    EXPECT_EQ(User().ShownChoices(kChoices), (Texts{"RAM", "Flash"}));
}

TEST_F(FieldsTest, ChoicesCarryTheirData) {
    View().AddChoice(kChoices, "RAM", -1);
    View().AddChoice(kChoices, "Flash", 2);
    EXPECT_EQ(View().GetChoiceData(kChoices, 0), -1);
    EXPECT_EQ(View().GetChoiceData(kChoices, 1), 2);
    EXPECT_EQ(View().GetChoiceData(kChoices, 2), std::nullopt);
    EXPECT_EQ(View().GetChoiceData(kChoices, kNoChoice), std::nullopt);
}

TEST_F(FieldsTest, SelectChoiceIsReadBack) {
    View().AddChoice(kChoices, "RAM", 1);
    View().AddChoice(kChoices, "Flash", 2);
    View().SelectChoice(kChoices, 1);
    EXPECT_EQ(View().GetSelectedChoice(kChoices), 1);
    View().AddChoice(kChoices, "Card", 3);
    EXPECT_EQ(View().GetSelectedChoice(kChoices), 1);
}

TEST_F(FieldsTest, SelectOfNoChoiceLeavesNothingChosen) {
    View().AddChoice(kChoices, "RAM", 1);
    for (const int none : {kNoChoice, 1, -7}) {
        View().SelectChoice(kChoices, 0);
        View().SelectChoice(kChoices, none);
        EXPECT_EQ(View().GetSelectedChoice(kChoices), kNoChoice) << none;
    }
}

TEST_F(FieldsTest, UserChoosesFromTheList) {
    View().AddChoice(kChoices, "RAM", 1);
    View().AddChoice(kChoices, "R&D", 2);
    EXPECT_TRUE(User().Choose(kChoices, "R&D"));
    EXPECT_EQ(View().GetSelectedChoice(kChoices), 1);
    EXPECT_FALSE(User().Choose(kChoices, "Card"));
    EXPECT_EQ(View().GetSelectedChoice(kChoices), 1);
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(FieldsTest, DisabledListCannotBeChosenFrom) {
    View().AddChoice(kChoices, "RAM", 1);
    View().SetEnabled(kChoices, false);
    EXPECT_FALSE(User().Choose(kChoices, "RAM"));
    EXPECT_EQ(View().GetSelectedChoice(kChoices), kNoChoice);
}

// Icon

TEST_F(FieldsTest, IconIsShownAndChanged) {
    EXPECT_EQ(User().ShownIcon(kIcon), std::nullopt);
    EXPECT_EQ(View().SetIcon(kIcon, StandardIcon::Information), 0);
    EXPECT_EQ(User().ShownIcon(kIcon), StandardIcon::Information);
    EXPECT_EQ(View().SetIcon(kIcon, StandardIcon::Warning), 0);
    EXPECT_EQ(User().ShownIcon(kIcon), StandardIcon::Warning);
}

// Any

TEST_F(FieldsTest, EachFieldTakesTheFocus) {
    for (const panel::ControlId id : {kEdit, kAddress, kCheck, kChoices}) {
        View().SetFocus(id);
        EXPECT_EQ(View().GetFocus(), id);
    }
}

TEST_F(FieldsTest, DisabledAddressGetsTheFocusWhenEnabled) {
    View().SetEnabled(kAddress, false);
    View().SetFocus(kAddress);
    View().SetEnabled(kAddress, true);
    User().PressTab();
    EXPECT_EQ(View().GetFocus(), kCheck);
}

TEST_F(FieldsTest, VerbsOnAControlOfAnotherKindDoNothing) {
    for (const panel::ControlId id : {kFirstButton, kMissing, panel::kNoControl}) {
        View().SetChecked(id, true);
        View().SetAddress(id, 7);
        View().SelectChoice(id, 0);
        EXPECT_FALSE(View().IsChecked(id));
        EXPECT_EQ(View().GetAddress(id), 0u);
        EXPECT_EQ(View().AddChoice(id, "text", 1), kNoChoice);
        EXPECT_EQ(View().GetSelectedChoice(id), kNoChoice);
        EXPECT_EQ(View().GetChoiceData(id, 0), std::nullopt);
        EXPECT_EQ(View().SetIcon(id, StandardIcon::Warning), 0);
    }
}

// Places

TEST_F(FieldsTest, ToScreenCountsFromTheControlsCorner) {
    const panel::Rectangle list = User().ScreenRectangle(kManyList);
    EXPECT_EQ(View().ToScreen(kManyList, {0, 0}), (panel::Point{list.x, list.y}));
    EXPECT_EQ(View().ToScreen(kManyList, {2, 3}), (panel::Point{list.x + 2, list.y + 3}));
}

TEST_F(FieldsTest, RowsInSightLieInsideTheListOneBelowTheOther) {
    FillList(kManyList, 3);
    const panel::Size area = View().GetListClientSize(kManyList);
    panel::Point above{0, 0};
    for (int row = 0; row < 3; ++row) {
        const std::optional<panel::Point> place = View().GetRowPosition(kManyList, row);
        ASSERT_TRUE(place);
        EXPECT_GT(place->y, above.y) << row;
        EXPECT_LT(place->y, area.height) << row;
        EXPECT_LT(place->x, area.width) << row;
        above = *place;
    }
}

TEST_F(FieldsTest, RowScrolledOutOfSightLiesOutsideTheList) {
    FillList(kManyList, 200);
    EXPECT_GE(View().GetRowPosition(kManyList, 199)->y, View().GetListClientSize(kManyList).height);
    View().EnsureRowVisible(kManyList, 199);
    EXPECT_LT(View().GetRowPosition(kManyList, 199)->y, View().GetListClientSize(kManyList).height);
    EXPECT_LT(View().GetRowPosition(kManyList, 0)->y, 0);
}

TEST_F(FieldsTest, MissingRowHasNoPosition) {
    FillList(kManyList, 1);
    EXPECT_EQ(View().GetRowPosition(kManyList, 1), std::nullopt);
    EXPECT_EQ(View().GetRowPosition(kManyList, panel::kNoRow), std::nullopt);
    EXPECT_EQ(View().GetRowPosition(kFirstButton, 0), std::nullopt);
    EXPECT_EQ(View().GetListClientSize(kFirstButton), panel::Size{});
}

}

}
