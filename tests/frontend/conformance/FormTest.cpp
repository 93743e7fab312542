#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

using panel::DialogOutcome;

/// A dialog whose fields are filled in by the user and read when OK is pressed.
class FormTest : public ConformanceTest {
protected:
    struct Filled {
        std::string text;
        std::uint32_t address = 0;
        bool isTicked = false;
        int choice = panel::kNoChoice;

        friend bool operator==(const Filled&, const Filled&) = default;
    };

    void SetUp() override {
        Show();
        m_dialogHandler.onInit = [this](panel::IView& view) { Open(view); };
        m_dialogHandler.onCommand = [this](panel::ControlId id) { Act(id); };
    }

    void Open(panel::IView& view) {
        m_dialog = &view;
        view.SetText(kFormEdit, "office");
        view.SetAddress(kFormAddress, 0xC0A80001);
        view.AddChoice(kFormChoices, "RAM", 1);
        view.AddChoice(kFormChoices, "Flash", 2);
    }

    void Act(panel::ControlId id) {
        if (id == kFormCheck) {
            m_dialog->SetEnabled(kFormAddress, !m_dialog->IsChecked(kFormCheck));
            return;
        }
        m_filled = {m_dialog->GetText(kFormEdit), m_dialog->GetAddress(kFormAddress),
                    m_dialog->IsChecked(kFormCheck), m_dialog->GetSelectedChoice(kFormChoices)};
        m_dialog->EndDialog(id);
    }

    panel::IView* m_dialog = nullptr;
    Filled m_filled;
};

TEST_F(FormTest, FieldsLeftAloneKeepWhatInitSet) {
    m_driver->ExpectDialog([](IViewUser& user) { user.Press(panel::kOkButton); });
    EXPECT_EQ(RunDialog(kFormTemplate), DialogOutcome::Closed(panel::kOkButton));
    EXPECT_EQ(m_filled, (Filled{"office", 0xC0A80001, false, panel::kNoChoice}));
}

TEST_F(FormTest, WhatTheUserFillsInIsReadAtOk) {
    m_driver->ExpectDialog([](IViewUser& user) {
        EXPECT_TRUE(user.TypeText(kFormEdit, "store"));
        EXPECT_TRUE(user.TypeAddress(kFormAddress, 0x0A141EFF));
        EXPECT_TRUE(user.Choose(kFormChoices, "Flash"));
        EXPECT_TRUE(user.Toggle(kFormCheck));
        EXPECT_TRUE(user.Press(panel::kOkButton));
    });
    EXPECT_EQ(RunDialog(kFormTemplate), DialogOutcome::Closed(panel::kOkButton));
    EXPECT_EQ(m_filled, (Filled{"store", 0x0A141EFF, true, 1}));
}

TEST_F(FormTest, ToggleSwitchesAnotherFieldAtOnce) {
    m_driver->ExpectDialog([](IViewUser& user) {
        EXPECT_TRUE(user.Toggle(kFormCheck));
        EXPECT_FALSE(user.TypeAddress(kFormAddress, 1));
        EXPECT_TRUE(user.Toggle(kFormCheck));
        EXPECT_TRUE(user.TypeAddress(kFormAddress, 2));
    });
    EXPECT_EQ(RunDialog(kFormTemplate), DialogOutcome::Closed(panel::kCancelButton));
    EXPECT_EQ(m_filled.address, 2u);
}

TEST_F(FormTest, ReturnInAFieldSendsTheDefaultButtonWithWhatIsTyped) {
    m_driver->ExpectDialog([](IViewUser& user) {
        user.TypeAddress(kFormAddress, 0x01010101);
        user.PressReturn();
    });
    EXPECT_EQ(RunDialog(kFormTemplate), DialogOutcome::Closed(panel::kOkButton));
    EXPECT_EQ(m_filled.address, 0x01010101u);
}

TEST_F(FormTest, EscapeInAFieldSendsCancel) {
    m_driver->ExpectDialog([](IViewUser& user) {
        user.TypeText(kFormEdit, "store");
        user.PressEscape();
    });
    EXPECT_EQ(RunDialog(kFormTemplate), DialogOutcome::Closed(panel::kCancelButton));
}

TEST_F(FormTest, TabGoesFromFieldToField) {
    std::vector<panel::ControlId> order;
    m_driver->ExpectDialog([&](IViewUser& user) {
        m_dialog->SetFocus(kFormEdit);
        for (int step = 0; step < 5; ++step) {
            user.PressTab();
            order.push_back(m_dialog->GetFocus());
        }
    });
    RunDialog(kFormTemplate);
    EXPECT_EQ(order, (std::vector<panel::ControlId>{kFormAddress, kFormCheck, kFormChoices,
                                                    panel::kOkButton, panel::kCancelButton}));
}

}

}
