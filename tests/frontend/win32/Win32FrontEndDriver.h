#pragma once

#include "frontend/win32/Win32Toolkit.h"
#include "tests/frontend/conformance/FrontEndDriver.h"
#include "tests/frontend/win32/HostWindow.h"
#include "tests/frontend/win32/PromptHands.h"

namespace win32tests {

class CWin32FrontEndDriver final : public conformance::IFrontEndDriver {
public:
    ~CWin32FrontEndDriver() override;

    panel::IToolkit& Toolkit() override { return m_toolkit; }
    std::unique_ptr<panel::IView> CreateView(const panel::DialogTemplate& dialogTemplate,
                                             panel::IDialogHandler& handler) override;
    std::unique_ptr<panel::IView> CreateViewInVain(const panel::DialogTemplate& dialogTemplate,
                                                   panel::IDialogHandler& handler) override;
    conformance::IViewUser& UserOf(panel::IView& view) override;

    void ExpectBox(std::int32_t button, std::function<void()> whileOpen) override;
    void ExpectBoxAndEscape() override;
    void ExpectDialog(std::function<void(conformance::IViewUser&)> act) override;
    void ExpectMenu(int command, std::function<void()> whileOpen) override;
    void ExpectFileDialog(std::function<void(conformance::IFileDialogUser&)> act) override;
    /// The system's dialog ends with an error instead.
    void ExpectFileRefusal() override {}
    std::vector<conformance::ShownBox> Boxes() override { return m_boxes; }
    std::vector<conformance::ShownMenu> Menus() override { return m_menus; }

    bool OpensByCompletedName() override;
    bool IsWaitCursorShown() override;
    bool IsHelpViewerShown() override;

private:
    conformance::IViewUser& AddUser(HWND view);

    CHostWindow m_window;
    win32::CWin32Toolkit m_toolkit;
    CPromptHands m_prompts;
    std::vector<conformance::ShownBox> m_boxes;
    std::vector<conformance::ShownMenu> m_menus;
    std::vector<std::unique_ptr<conformance::IViewUser>> m_users;
};

}
