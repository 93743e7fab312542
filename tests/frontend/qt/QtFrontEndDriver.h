#pragma once

#include "frontend/qt/QtToolkit.h"
#include "tests/frontend/conformance/FrontEndDriver.h"
#include "tests/frontend/qt/PromptHands.h"

#include <QWidget>

namespace qttests {

/// Drives the widgets with the events of a mouse and a keyboard.
class CQtFrontEndDriver final : public conformance::IFrontEndDriver {
public:
    ~CQtFrontEndDriver() override;

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
    void ExpectFileRefusal() override;
    std::vector<conformance::ShownBox> Boxes() override { return m_boxes; }
    std::vector<conformance::ShownMenu> Menus() override { return m_menus; }

    bool IsWaitCursorShown() override;
    bool IsHelpViewerShown() override;

private:
    conformance::IViewUser& AddUser(QWidget& view);

    QWidget m_window;
    qt::CQtToolkit m_toolkit;
    CPromptHands m_prompts;
    std::vector<conformance::ShownBox> m_boxes;
    std::vector<conformance::ShownMenu> m_menus;
    std::vector<std::unique_ptr<conformance::IViewUser>> m_users;
};

}
