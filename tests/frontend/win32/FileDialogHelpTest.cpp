#include "frontend/win32/Win32Toolkit.h"
#include "tests/frontend/win32/Input.h"
#include "tests/frontend/win32/PromptHands.h"

#include <gtest/gtest.h>

#include <dlgs.h>

#include <cstdint>
#include <functional>
#include <vector>

namespace win32tests {

namespace {

constexpr int kMethod = 265;
constexpr int kDestination = 267;

constexpr panel::ControlTemplate kControls[] = {
    {kMethod, panel::ControlKind::DropDownList, "", {52, 4, 77, 14}, {}, 265},
    {kDestination, panel::ControlKind::DropDownList, "", {52, 21, 77, 14}},
};
constexpr panel::DialogTemplate kOptions{440, "", {133, 39}, kControls};

using Contexts = std::vector<std::uint32_t>;

/// Options that write down the help requests.
class CAskedHandler final : public panel::IFileDialogHandler {
public:
    void OnInit(panel::IView&) override {}
    void OnCommand(panel::ControlId) override {}
    void OnHelp(std::uint32_t context) override { contexts.push_back(context); }
    bool OnFileAccepted() override { return true; }

    Contexts contexts;
};

class FileDialogHelpTest : public testing::Test {
protected:
    ~FileDialogHelpTest() override {
        EXPECT_TRUE(m_prompts.GetUnexpected().empty());
        EXPECT_EQ(m_prompts.GetOutstanding(), 0u);
    }

    /// The help requests of F1 on a window of the dialog.
    Contexts AskOn(std::function<HWND(HWND)> find) {
        m_prompts.Expect(PromptKind::FileDialog, [&](HWND dialog) {
            SetFocus(find(dialog));
            PressKey(VK_F1);
            SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        CAskedHandler handler;
        m_toolkit.OpenFile({.optionsTemplate = &kOptions, .optionsHandler = &handler});
        return handler.contexts;
    }

    static HWND OptionOf(HWND dialog, int id) {
        return GetDlgItem(ChildrenOf(dialog, L"#32770").front(), id);
    }

    CPromptHands m_prompts;
    win32::CWin32Toolkit m_toolkit;
};

TEST_F(FileDialogHelpTest, HelpKeyOnAnOptionCarriesItsContext) {
    EXPECT_EQ(AskOn([](HWND dialog) { return OptionOf(dialog, kMethod); }), Contexts{265});
}

TEST_F(FileDialogHelpTest, HelpKeyOnAnOptionWithoutContextReachesTheOptions) {
    EXPECT_EQ(AskOn([](HWND dialog) { return OptionOf(dialog, kDestination); }), Contexts{0});
}

TEST_F(FileDialogHelpTest, HelpKeyInTheSystemsPartReachesTheOptions) {
    EXPECT_EQ(AskOn([](HWND dialog) { return GetDlgItem(dialog, IDCANCEL); }), Contexts{0});
    EXPECT_EQ(AskOn([](HWND dialog) { return GetDlgItem(dialog, cmb1); }), Contexts{0});
}

}

}
