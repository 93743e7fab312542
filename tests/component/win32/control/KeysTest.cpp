#include "tests/component/win32/control/ControlFixture.h"

#include "panel/control/PanelTemplate.h"
#include "tests/frontend/win32/Input.h"

#include <algorithm>

namespace controltests {

namespace {

using Keys = std::vector<OfferedKey>;

constexpr DWORD kShift = 1;

class KeysTest : public ControlFixture {
protected:
    void SetUp() override {
        StartConnected();
        ASSERT_EQ(container.ActivateForUser(), S_OK);
        container.Pump();
    }

    void Focus(int id) { SetFocus(container.Button(id)); }
    int Focused() { return GetDlgCtrlID(GetFocus()); }
    bool WasOffered(const OfferedKey& key) {
        return std::ranges::find(Offered(), key) != Offered().end();
    }
    const Keys& Offered() { return container.Site().offeredKeys; }
    ComPtr<IOleInPlaceActiveObject> Active() { return container.As<IOleInPlaceActiveObject>(); }
    /// The controls that Tab reaches, beginning with one, until it is offered to the site.
    std::vector<int> Walk(int first, std::uint16_t heldKey) {
        Focus(first);
        std::vector<int> walked{Focused()};
        for (int step = 0; step < 40; ++step) {
            container.Press(VK_TAB, heldKey);
            if (WasOffered({WM_KEYDOWN, VK_TAB, heldKey == VK_SHIFT ? kShift : 0})) {
                break;
            }
            walked.push_back(Focused());
        }
        return walked;
    }
};

TEST_F(KeysTest, TabWalksThroughTheControlsAndLeavesAtTheEnd) {
    EXPECT_EQ(Walk(panel::kFileList, 0),
              (std::vector<int>{panel::kFileList, panel::kStatusLog, panel::kUpdateButton,
                                panel::kDeleteButton, panel::kReportButton, panel::kResetButton,
                                panel::kDetailsButton, panel::kNetworkButton, panel::kCloseButton,
                                panel::kHelpButton}));
    EXPECT_TRUE(WasOffered({WM_KEYDOWN, VK_TAB, 0}));
}

TEST_F(KeysTest, ShiftTabWalksBackAndLeavesAtTheBeginning) {
    EXPECT_EQ(Walk(panel::kDeleteButton, VK_SHIFT),
              (std::vector<int>{panel::kDeleteButton, panel::kUpdateButton, panel::kStatusLog,
                                panel::kFileList, panel::kIpAddressField, panel::kSelfTestField,
                                panel::kApplicationSwField, panel::kFpgaField, panel::kBootSwField,
                                panel::kFreeRamField, panel::kRamSizeField, panel::kFreeFlashField,
                                panel::kFlashSizeField, panel::kHardwareField,
                                panel::kSerialNumberField}));
    EXPECT_TRUE(WasOffered({WM_KEYDOWN, VK_TAB, kShift}));
}

TEST_F(KeysTest, TabFromTheViewItselfGoesToItsFirstControl) {
    Focus(panel::kUpdateButton);
    host->RaiseState(5);
    ASSERT_EQ(GetFocus(), container.View());
    container.Press(VK_TAB);
    EXPECT_EQ(Focused(), panel::kSerialNumberField);
}

TEST_F(KeysTest, ArrowsMoveInTheList) {
    Focus(panel::kFileList);
    container.Press(VK_HOME);
    container.Press(VK_DOWN);
    container.Press(VK_DOWN);
    EXPECT_EQ(SendMessageW(container.Button(panel::kFileList), LVM_GETNEXTITEM,
                           static_cast<WPARAM>(-1), LVNI_FOCUSED),
              2);
}

TEST_F(KeysTest, ArrowsMoveAmongTheButtons) {
    Focus(panel::kUpdateButton);
    container.Press(VK_RIGHT);
    EXPECT_EQ(Focused(), panel::kDeleteButton);
}

TEST_F(KeysTest, ContextMenuKeyOpensTheMenuOfTheList) {
    Focus(panel::kFileList);
    prompts.ExpectMenu(panel::kNoCommand);
    container.Press(VK_APPS);
    EXPECT_EQ(prompts.Menus().size(), 1u);
    EXPECT_EQ(Focused(), panel::kFileList);
}

TEST_F(KeysTest, ReturnPressesTheFocusedButton) {
    Focus(panel::kCloseButton);
    container.Press(VK_RETURN);
    EXPECT_EQ(host->viewControl->closeRequests, 1);
}

TEST_F(KeysTest, ReturnOutsideAButtonIsOfferedToTheSite) {
    for (const int id : {panel::kFileList, panel::kStatusLog, panel::kHardwareField}) {
        Focus(id);
        MSG key{container.Button(id), WM_KEYDOWN, VK_RETURN, 0, 0, {}};
        EXPECT_EQ(Active()->TranslateAccelerator(&key), S_FALSE) << id;
    }
    EXPECT_EQ(Offered(), Keys(3, {WM_KEYDOWN, VK_RETURN, 0}));
}

TEST_F(KeysTest, SpacePressesTheFocusedButton) {
    Focus(panel::kCloseButton);
    container.Press(VK_SPACE);
    EXPECT_EQ(host->viewControl->closeRequests, 1);
}

TEST_F(KeysTest, AltAndMnemonicPressTheButton) {
    Focus(panel::kFileList);
    container.Press('C', VK_MENU);
    EXPECT_EQ(host->viewControl->closeRequests, 1);
}

TEST_F(KeysTest, HelpKeyOpensTheHelp) {
    Focus(panel::kFileList);
    container.Press(VK_F1);
    EXPECT_TRUE(prompts.IsHelpViewerShown());
}

TEST_F(KeysTest, OtherKeysAreOfferedToTheSiteWithTheirModifiers) {
    Focus(panel::kFileList);
    container.Press(VK_F5);
    container.Press(VK_TAB, VK_CONTROL);
    container.Press(VK_ESCAPE);
    EXPECT_THAT(Offered(), testing::IsSupersetOf({OfferedKey{WM_KEYDOWN, VK_F5, 0},
                                                  OfferedKey{WM_KEYDOWN, VK_TAB, 2},
                                                  OfferedKey{WM_KEYDOWN, VK_ESCAPE, 0}}));
}

TEST_F(KeysTest, AltAndLetterOfNoButtonAreOfferedToTheSite) {
    Focus(panel::kFileList);
    MSG key{container.Button(panel::kFileList), WM_SYSCHAR, 'x', 0, 0, {}};
    EXPECT_EQ(Active()->TranslateAccelerator(&key), S_FALSE);
    EXPECT_EQ(Offered(), (Keys{{WM_SYSCHAR, 'x', 0}}));
    container.Record().Answer("TranslateAccelerator", S_OK);
    EXPECT_EQ(Active()->TranslateAccelerator(&key), S_OK);
}

TEST_F(KeysTest, MnemonicThatItsButtonCannotTakeIsOfferedToTheSite) {
    Focus(panel::kStatusLog);
    host->RaiseState(5);
    MSG key{container.Button(panel::kStatusLog), WM_SYSCHAR, 's', 0, 0, {}};
    EXPECT_EQ(Active()->TranslateAccelerator(&key), S_FALSE);
    EXPECT_EQ(Offered(), (Keys{{WM_SYSCHAR, 's', 0}}));
}

TEST_F(KeysTest, MnemonicOfAButtonIsNotOfferedInEitherCase) {
    Focus(panel::kFileList);
    for (const WPARAM letter : {'c', 'C'}) {
        MSG key{container.Button(panel::kFileList), WM_SYSCHAR, letter, 0, 0, {}};
        EXPECT_EQ(Active()->TranslateAccelerator(&key), S_OK);
    }
    EXPECT_EQ(Offered(), Keys{});
    EXPECT_EQ(host->viewControl->closeRequests, 2);
}

TEST_F(KeysTest, KeyThatTheSiteUsesDoesNotReachTheControl) {
    Focus(panel::kFileList);
    container.Record().Answer("TranslateAccelerator", S_OK);
    MSG key{container.Button(panel::kFileList), WM_KEYDOWN, VK_F5, 0, 0, {}};
    EXPECT_EQ(Active()->TranslateAccelerator(&key), S_OK);
    container.Record().AnswerAsUsual();
    EXPECT_EQ(Active()->TranslateAccelerator(&key), S_FALSE);
}

TEST_F(KeysTest, KeysOfOtherWindowsAreNotTheControls) {
    SetFocus(window->Get());
    MSG key{window->Get(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_EQ(Active()->TranslateAccelerator(&key), S_FALSE);
    EXPECT_EQ(Offered(), Keys{});
}

TEST_F(KeysTest, MessagesThatAreNoKeysAreNotTheControls) {
    Focus(panel::kFileList);
    MSG move{container.Button(panel::kFileList), WM_MOUSEMOVE, 0, 0, 0, {}};
    container.Record().Answer("TranslateAccelerator", S_OK);
    EXPECT_EQ(Active()->TranslateAccelerator(&move), S_FALSE);
    EXPECT_EQ(Offered(), Keys{});
}

TEST_F(KeysTest, InactiveControlTakesNoKeys) {
    container.As<IOleInPlaceObject>()->InPlaceDeactivate();
    MSG key{window->Get(), WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_EQ(Active()->TranslateAccelerator(&key), S_FALSE);
}

TEST_F(KeysTest, ControlInfoNamesTheMnemonicsOfTheButtons) {
    CONTROLINFO info{};
    info.cb = sizeof info;
    ASSERT_EQ(container.As<IOleControl>()->GetControlInfo(&info), S_OK);
    ASSERT_EQ(info.cAccel, 8);
    std::vector<ACCEL> table(8);
    ASSERT_EQ(CopyAcceleratorTableW(info.hAccel, table.data(), 8), 8);
    std::string keys;
    for (const ACCEL& entry : table) {
        EXPECT_TRUE(entry.fVirt & FALT);
        keys += static_cast<char>(entry.key);
    }
    EXPECT_EQ(keys, "UDRSEKCH");
}

TEST_F(KeysTest, ControlInfoOfAnOlderSizeIsRefused) {
    CONTROLINFO info{};
    info.cb = sizeof info - 1;
    EXPECT_EQ(container.As<IOleControl>()->GetControlInfo(&info), E_INVALIDARG);
}

TEST_F(KeysTest, MnemonicFromTheContainerPressesTheButton) {
    SetFocus(window->Get());
    MSG key{window->Get(), WM_SYSKEYDOWN, 'C', 0, 0, {}};
    EXPECT_EQ(container.As<IOleControl>()->OnMnemonic(&key), S_OK);
    EXPECT_EQ(host->viewControl->closeRequests, 1);
}

TEST_F(KeysTest, MnemonicFromTheContainerAsACharacterPressesTheButtonInEitherCase) {
    for (const WPARAM letter : {'c', 'C'}) {
        MSG key{window->Get(), WM_SYSCHAR, letter, 0, 0, {}};
        EXPECT_EQ(container.As<IOleControl>()->OnMnemonic(&key), S_OK);
    }
    EXPECT_EQ(host->viewControl->closeRequests, 2);
}

TEST_F(KeysTest, KeyNumberedLikeASmallLetterIsNoMnemonic) {
    static_assert(VK_NUMPAD3 == 'c');
    MSG key{window->Get(), WM_SYSKEYDOWN, VK_NUMPAD3, 0, 0, {}};
    EXPECT_EQ(container.As<IOleControl>()->OnMnemonic(&key), S_OK);
    EXPECT_EQ(host->viewControl->closeRequests, 0);
}

TEST_F(KeysTest, MnemonicOfADisabledButtonDoesNothing) {
    host->RaiseState(5);
    MSG key{window->Get(), WM_SYSKEYDOWN, 'S', 0, 0, {}};
    EXPECT_EQ(container.As<IOleControl>()->OnMnemonic(&key), S_OK);
    EXPECT_EQ(host->device->calls, Calls{});
}

TEST_F(KeysTest, MnemonicForAHiddenControlDoesNothing) {
    container.As<IOleInPlaceObject>()->InPlaceDeactivate();
    MSG key{window->Get(), WM_SYSKEYDOWN, 'C', 0, 0, {}};
    EXPECT_EQ(container.As<IOleControl>()->OnMnemonic(&key), S_OK);
    EXPECT_EQ(host->viewControl->closeRequests, 0);
}

}

}
