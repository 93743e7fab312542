#include "tests/frontend/conformance/ConformanceTest.h"

#include "panel/control/PanelTemplate.h"

namespace conformance {

namespace {

class ControlsTest : public ConformanceTest {};

TEST_F(ControlsTest, CreateViewCallsInitOnceAndReportsNothingElse) {
    m_view = m_driver->CreateView(kSmallTemplate, m_handler);
    ASSERT_NE(m_view, nullptr);
    EXPECT_EQ(m_handler.events, Events{"init"});
}

TEST_F(ControlsTest, CreateViewInVainReturnsNullWithoutInit) {
    EXPECT_EQ(m_driver->CreateViewInVain(kSmallTemplate, m_handler), nullptr);
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(ControlsTest, InitFindsTheControlsOfTheTemplate) {
    std::string text;
    bool isVisible = false;
    m_handler.onInit = [&](panel::IView& view) {
        text = view.GetText(kField);
        isVisible = view.IsVisible(kField);
    };
    Show();
    EXPECT_EQ(text, "initial");
    EXPECT_TRUE(isVisible);
}

TEST_F(ControlsTest, CaptureReturnsIdOfEachControlOfThePanel) {
    Show(panel::kPanelTemplate);
    for (const panel::ControlTemplate& control : panel::kPanelTemplate.controls) {
        EXPECT_EQ(View().Capture(control.id), control.id);
    }
}

TEST_F(ControlsTest, CaptureOfMissingControlReturnsNoControl) {
    Show();
    EXPECT_EQ(View().Capture(kMissing), panel::kNoControl);
    EXPECT_EQ(View().Capture(panel::kNoControl), panel::kNoControl);
}

TEST_F(ControlsTest, InitialStatesFollowTheTemplate) {
    Show();
    EXPECT_TRUE(View().IsEnabled(kFirstButton));
    EXPECT_TRUE(View().IsVisible(kFirstButton));
    EXPECT_FALSE(View().IsEnabled(kDisabledButton));
    EXPECT_TRUE(View().IsVisible(kDisabledButton));
    EXPECT_FALSE(View().IsVisible(kHiddenButton));
}

TEST_F(ControlsTest, TemplateTextsAreShownWithoutMnemonicMark) {
    Show();
    EXPECT_EQ(User().ShownText(kFrame), "Frame");
    EXPECT_EQ(User().ShownText(kCaption), "Caption");
    EXPECT_EQ(User().ShownText(kSecondButton), "Second");
    EXPECT_EQ(User().ShownText(kField), "initial");
    EXPECT_EQ(User().ShownText(kCheck), "Tick");
}

TEST_F(ControlsTest, SetTextShowsAndReturnsItOnEveryTextControl) {
    Show();
    for (panel::ControlId id : {kFrame, kCaption, kCentred, kField, kFirstButton, kEdit, kCheck}) {
        View().SetText(id, "new text");
        EXPECT_EQ(View().GetText(id), "new text") << id;
        EXPECT_EQ(User().ShownText(id), "new text") << id;
    }
}

TEST_F(ControlsTest, SetTextOfNumberFieldShowsDigits) {
    Show();
    View().SetText(kNumber, "1048576");
    EXPECT_EQ(View().GetText(kNumber), "1048576");
    EXPECT_EQ(User().ShownText(kNumber), "1048576");
}

TEST_F(ControlsTest, SetTextEmptyEmptiesTheField) {
    Show();
    View().SetText(kField, "");
    EXPECT_EQ(View().GetText(kField), "");
    EXPECT_EQ(User().ShownText(kField), "");
}

TEST_F(ControlsTest, FieldsForReadingCannotBeTypedInto) {
    Show();
    View().SetText(kNumber, "1048576");
    User().TypeText(kField, "typed");
    User().TypeText(kNumber, "99");
    EXPECT_EQ(User().ShownText(kField), "initial");
    EXPECT_EQ(User().ShownText(kNumber), "1048576");
}

TEST_F(ControlsTest, AmpersandSetAtRunTimeIsShown) {
    Show();
    for (panel::ControlId id : {kFrame, kCaption, kCentred, kField, kFirstButton, kEdit, kCheck}) {
        View().SetText(id, "R&D && more");
        EXPECT_EQ(View().GetText(id), "R&D && more") << id;
        EXPECT_EQ(User().ShownText(id), "R&D && more") << id;
    }
}

TEST_F(ControlsTest, MarkupSetAtRunTimeIsShownAsItIs) {
    Show();
    for (panel::ControlId id : {kFrame, kCaption, kField, kFirstButton}) {
        View().SetText(id, "<b>bold</b> &lt;");
        EXPECT_EQ(User().ShownText(id), "<b>bold</b> &lt;") << id;
    }
}

TEST_F(ControlsTest, NonAsciiTextIsKept) {
    Show();
    View().SetText(kField, "\xC3\x84rger \xE2\x82\xAC \xF0\x9F\x94\xA7");
    EXPECT_EQ(View().GetText(kField), "\xC3\x84rger \xE2\x82\xAC \xF0\x9F\x94\xA7");
}

TEST_F(ControlsTest, InvalidByteIsShownAsReplacementCharacter) {
    Show();
    const std::string expected = std::string("a") + kReplacement + "z";
    for (panel::ControlId id : {kFrame, kCaption, kField, kFirstButton}) {
        View().SetText(id, "a\xFFz");
        EXPECT_EQ(View().GetText(id), expected) << id;
        EXPECT_EQ(User().ShownText(id), expected) << id;
    }
}

TEST_F(ControlsTest, SetTextOfLogAndListsDoesNothing) {
    Show();
    View().AppendLog(kLog, "kept\r\n");
    View().SetText(kLog, "lost");
    View().SetText(kManyList, "lost");
    EXPECT_EQ(View().GetText(kLog), "kept\r\n");
    EXPECT_EQ(View().GetText(kManyList), "");
}

TEST_F(ControlsTest, EnableSwitchesWhetherAUserCanPress) {
    Show();
    EXPECT_FALSE(User().Press(kDisabledButton));
    View().SetEnabled(kDisabledButton, true);
    EXPECT_TRUE(View().IsEnabled(kDisabledButton));
    EXPECT_TRUE(User().Press(kDisabledButton));
    View().SetEnabled(kDisabledButton, false);
    EXPECT_FALSE(User().Press(kDisabledButton));
    EXPECT_EQ(m_handler.events, Events{"command 310"});
}

TEST_F(ControlsTest, ShowSwitchesWhetherAUserCanPress) {
    Show();
    EXPECT_FALSE(User().Press(kHiddenButton));
    View().SetVisible(kHiddenButton, true);
    EXPECT_TRUE(View().IsVisible(kHiddenButton));
    EXPECT_TRUE(User().Press(kHiddenButton));
    View().SetVisible(kHiddenButton, false);
    EXPECT_FALSE(View().IsVisible(kHiddenButton));
    EXPECT_FALSE(User().Press(kHiddenButton));
    EXPECT_EQ(m_handler.events, Events{"command 311"});
}

TEST_F(ControlsTest, PressOfWhatIsNoButtonSendsNothing) {
    Show();
    EXPECT_FALSE(User().Press(kMissing));
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(ControlsTest, MnemonicPressesItsButton) {
    Show();
    EXPECT_TRUE(User().PressMnemonic('c'));
    EXPECT_EQ(m_handler.events, Events{"command 312"});
}

TEST_F(ControlsTest, MnemonicTogglesItsCheckBox) {
    Show();
    EXPECT_TRUE(User().PressMnemonic('t'));
    EXPECT_TRUE(View().IsChecked(kCheck));
    EXPECT_EQ(m_handler.events, Events{"command 317"});
}

TEST_F(ControlsTest, MnemonicOfUnusableButtonSendsNothing) {
    Show();
    EXPECT_FALSE(User().PressMnemonic('d'));
    EXPECT_FALSE(User().PressMnemonic('h'));
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(ControlsTest, VerbsOnAnyControlNeverCallTheHandler) {
    Show();
    for (const panel::ControlTemplate& control : kSmallTemplate.controls) {
        View().SetText(control.id, "text");
        View().SetEnabled(control.id, false);
        View().SetEnabled(control.id, true);
        View().SetVisible(control.id, false);
        View().SetVisible(control.id, true);
        View().SetFocus(control.id);
        View().Move(control.id, {1, 2, 30, 40});
        View().SetTextLimit(control.id, 10);
        View().SetChecked(control.id, true);
        View().SetAddress(control.id, 0x01020304);
        View().AddChoice(control.id, "choice", 1);
        View().SelectChoice(control.id, 0);
        View().SetIcon(control.id, panel::StandardIcon::Warning);
    }
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(ControlsTest, ViewMayBeDestroyedInsideItsCommand) {
    Show();
    m_handler.onCommand = [this](panel::ControlId) { m_view.reset(); };
    EXPECT_TRUE(User().Press(kFirstButton));
    EXPECT_EQ(m_view, nullptr);
    EXPECT_EQ(m_handler.events, Events{"command 309"});
}

TEST_F(ControlsTest, ViewMayBeDestroyedInABoxOfItsCommand) {
    Show();
    m_handler.onCommand = [this](panel::ControlId) { LoseViewInABox(); };
    EXPECT_TRUE(User().Press(kFirstButton));
    EXPECT_EQ(m_handler.events, Events{"command 309"});
    EXPECT_EQ(m_driver->Boxes().size(), 2u);
}

TEST_F(ControlsTest, ViewMayBeDestroyedInABoxOfItsMnemonic) {
    Show();
    m_handler.onCommand = [this](panel::ControlId) { LoseViewInABox(); };
    EXPECT_TRUE(User().PressMnemonic('f'));
    EXPECT_EQ(m_handler.events, Events{"command 309"});
    EXPECT_EQ(m_driver->Boxes().size(), 2u);
}

TEST_F(ControlsTest, ViewMayBeDestroyedInABoxOfItsHelpRequest) {
    Show();
    View().SetFocus(kManyList);
    m_handler.onHelp = [this] { LoseViewInABox(); };
    User().RequestHelp();
    EXPECT_EQ(m_handler.events, Events{"help 78"});
    EXPECT_EQ(m_driver->Boxes().size(), 2u);
}

}

}
