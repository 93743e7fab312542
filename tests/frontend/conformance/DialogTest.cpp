#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

using panel::DialogOutcome;

class DialogTest : public ConformanceTest {
protected:
    void SetUp() override {
        Show();
        m_dialogHandler.onInit = [this](panel::IView& view) { m_dialog = &view; };
        m_dialogHandler.onCommand = [this](panel::ControlId id) { m_dialog->EndDialog(id); };
    }

    panel::IView* m_dialog = nullptr;
};

TEST_F(DialogTest, InitCommandAndResultFollowEachOther) {
    m_driver->ExpectDialog([](IViewUser& user) { EXPECT_TRUE(user.Press(panel::kOkButton)); });
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(1));
    EXPECT_EQ(m_dialogHandler.events, (Events{"init", "command 1"}));
}

TEST_F(DialogTest, EndDialogReturnsItsResult) {
    m_dialogHandler.onCommand = [this](panel::ControlId) { m_dialog->EndDialog(4711); };
    m_driver->ExpectDialog([](IViewUser& user) { user.Press(panel::kOkButton); });
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(4711));
}

TEST_F(DialogTest, InitFillsWhatIsShown) {
    m_dialogHandler.onInit = [this](panel::IView& view) {
        m_dialog = &view;
        view.SetText(kDialogField, "from init");
    };
    m_driver->ExpectDialog([](IViewUser& user) {
        EXPECT_EQ(user.ShownTitle(), "A dialog");
        EXPECT_EQ(user.ShownText(kDialogField), "from init");
    });
    RunDialog();
}

TEST_F(DialogTest, DialogHasItsTemplateSizeInPixels) {
    m_driver->ExpectDialog([this](IViewUser&) {
        EXPECT_EQ(m_dialog->GetClientSize(),
                  panel::ToPixels(panel::Size{120, 60}, Toolkit().MeasureFont()));
    });
    RunDialog();
}

TEST_F(DialogTest, ReturnSendsTheDefaultButton) {
    m_dialogHandler.onInit = [this](panel::IView& view) {
        m_dialog = &view;
        view.SetFocus(kDialogField);
    };
    m_driver->ExpectDialog([](IViewUser& user) { user.PressReturn(); });
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(panel::kOkButton));
    EXPECT_EQ(m_dialogHandler.events, (Events{"init", "command 1"}));
}

TEST_F(DialogTest, EscapeSendsCancelThoughItsButtonIsHidden) {
    m_driver->ExpectDialog([](IViewUser& user) {
        EXPECT_FALSE(user.Press(panel::kCancelButton));
        user.PressEscape();
    });
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(panel::kCancelButton));
    EXPECT_EQ(m_dialogHandler.events, (Events{"init", "command 2"}));
}

TEST_F(DialogTest, CloseBoxSendsCancel) {
    m_driver->ExpectDialog([](IViewUser& user) { user.PressCloseBox(); });
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(panel::kCancelButton));
    EXPECT_EQ(m_dialogHandler.events, (Events{"init", "command 2"}));
}

TEST_F(DialogTest, EscapeSendsCancelWithoutAnyButton) {
    m_driver->ExpectDialog([](IViewUser& user) { user.PressEscape(); });
    EXPECT_EQ(RunDialog(kBareDialogTemplate), DialogOutcome::Closed(panel::kCancelButton));
    EXPECT_EQ(m_dialogHandler.events, (Events{"init", "command 2"}));
}

TEST_F(DialogTest, CancelThatIsNotHeededLeavesTheDialogOpen) {
    m_dialogHandler.onCommand = [this](panel::ControlId id) {
        if (id == panel::kOkButton)
            m_dialog->EndDialog(id);
    };
    m_driver->ExpectDialog([](IViewUser& user) {
        user.PressEscape();
        user.PressCloseBox();
        EXPECT_TRUE(user.Press(panel::kOkButton));
    });
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(panel::kOkButton));
    EXPECT_EQ(m_dialogHandler.events, (Events{"init", "command 2", "command 2", "command 1"}));
}

TEST_F(DialogTest, EndDialogDuringInitShowsNothing) {
    m_dialogHandler.onInit = [](panel::IView& view) { view.EndDialog(33); };
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(33));
    EXPECT_EQ(m_dialogHandler.events, Events{"init"});
}

TEST_F(DialogTest, EndDialogOfThePanelsViewDoesNothing) {
    View().EndDialog(1);
    EXPECT_TRUE(User().Press(kFirstButton));
    EXPECT_EQ(m_handler.events, Events{"command 309"});
}

TEST_F(DialogTest, HelpRequestGoesToTheDialog) {
    m_dialogHandler.onInit = [this](panel::IView& view) {
        m_dialog = &view;
        view.SetFocus(kDialogField);
    };
    m_driver->ExpectDialog([](IViewUser& user) { user.RequestHelp(); });
    RunDialog();
    EXPECT_EQ(m_dialogHandler.events, (Events{"init", "help 91", "command 2"}));
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(DialogTest, BoxDuringInitComesBeforeTheDialog) {
    m_dialogHandler.onInit = [this](panel::IView& view) {
        m_dialog = &view;
        Toolkit().ShowBox("cannot read", "caption", 0x10);
    };
    m_driver->ExpectBox(1);
    m_driver->ExpectDialog([](IViewUser& user) { user.Press(panel::kOkButton); });
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(panel::kOkButton));
    EXPECT_EQ(m_driver->Boxes().size(), 1u);
}

TEST_F(DialogTest, DialogInsideADialogReturnsFirst) {
    CRecordingHandler innerHandler;
    panel::IView* inner = nullptr;
    innerHandler.onInit = [&](panel::IView& view) { inner = &view; };
    innerHandler.onCommand = [&](panel::ControlId) { inner->EndDialog(20); };
    DialogOutcome innerOutcome;
    m_dialogHandler.onCommand = [&](panel::ControlId) {
        innerOutcome =
            Toolkit().RunDialog(kBareDialogTemplate, innerHandler, panel::Owner::ActiveWindow);
        m_dialog->EndDialog(10);
    };
    m_driver->ExpectDialog([](IViewUser& user) { user.Press(panel::kOkButton); });
    m_driver->ExpectDialog([](IViewUser& user) { user.PressEscape(); });
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(10));
    EXPECT_EQ(innerOutcome, DialogOutcome::Closed(20));
}

TEST_F(DialogTest, DialogOpenedFromAPanelCommandReturnsIntoIt) {
    DialogOutcome outcome;
    m_handler.onCommand = [&](panel::ControlId) { outcome = RunDialog(); };
    m_driver->ExpectDialog([](IViewUser& user) { user.Press(panel::kOkButton); });
    EXPECT_TRUE(User().Press(kFirstButton));
    EXPECT_EQ(outcome, DialogOutcome::Closed(panel::kOkButton));
}

TEST_F(DialogTest, PanelViewCanBeWrittenWhileADialogIsOpen) {
    m_driver->ExpectDialog([this](IViewUser&) {
        View().AppendLog(kLog, "meanwhile\r\n");
        EXPECT_EQ(View().GetText(kLog), "meanwhile\r\n");
    });
    RunDialog();
    EXPECT_EQ(View().GetText(kLog), "meanwhile\r\n");
}

TEST_F(DialogTest, DialogOfEachOwnerCanBeRunTwice) {
    for (panel::Owner owner : {panel::Owner::None, panel::Owner::Panel, panel::Owner::PanelParent,
                               panel::Owner::ActiveWindow}) {
        m_driver->ExpectDialog([](IViewUser& user) { user.Press(panel::kOkButton); });
        EXPECT_EQ(Toolkit().RunDialog(kDialogTemplate, m_dialogHandler, owner),
                  DialogOutcome::Closed(panel::kOkButton));
    }
}

}

}
