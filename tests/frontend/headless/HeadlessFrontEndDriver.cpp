#include "frontend/headless/HeadlessFileDialog.h"
#include "frontend/headless/HeadlessToolkit.h"
#include "tests/frontend/conformance/FrontEndDriver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using conformance::IViewUser;
using panel::ControlId;

conformance::ShownBox AsShown(const headless::ShownBox& box) {
    conformance::ShownBox shown{box.text, box.caption, box.style};
    for (std::size_t end = shown.text.find("\r\n"); end != std::string::npos;
         end = shown.text.find("\r\n", end)) {
        shown.text.erase(end, 1);
    }
    return shown;
}

class CHeadlessViewUser : public IViewUser {
public:
    explicit CHeadlessViewUser(headless::CHeadlessView& view) : m_view(view) {}

    bool Press(ControlId button) override { return m_view.Press(button); }
    bool PressMnemonic(char letter) override { return m_view.PressMnemonic(letter); }
    bool PressKeyInList(ControlId list, std::uint16_t virtualKey) override {
        return m_view.PressKeyInList(list, virtualKey);
    }
    bool ClickRow(ControlId list, int row, conformance::Modifier modifier) override {
        return m_view.ClickRow(list, row, static_cast<headless::Modifier>(modifier));
    }
    bool RightClickRow(ControlId list, int row) override { return m_view.RightClick(list, row); }
    bool Toggle(ControlId box) override { return m_view.Toggle(box); }
    bool TypeText(ControlId field, std::string_view text) override {
        return m_view.TypeText(field, text);
    }
    bool TypeAddress(ControlId field, std::uint32_t address) override {
        return m_view.TypeAddress(field, address);
    }
    bool Choose(ControlId list, std::string_view text) override {
        return m_view.Choose(list, text);
    }
    void RequestHelp() override { m_view.RequestHelp(); }
    void PressTab() override { m_view.PressTab(); }
    void PressReturn() override { m_view.PressReturn(); }
    void PressEscape() override { m_view.PressEscape(); }
    void PressCloseBox() override { m_view.PressEscape(); }

    std::string ShownTitle() override { return m_view.Template().title; }
    std::string ShownText(ControlId id) override { return m_view.GetText(id); }
    std::vector<conformance::ShownColumn> ShownColumns(ControlId list) override {
        std::vector<conformance::ShownColumn> shown;
        for (const headless::HeadlessColumn& column : m_view.Columns(list)) {
            shown.push_back({column.heading, column.widthPixels, column.alignment});
        }
        return shown;
    }
    std::string ShownCell(ControlId list, int row, int column) override {
        return m_view.GetCell(list, row, column);
    }
    bool IsRowInSight(ControlId list, int row) override { return m_view.IsRowInSight(list, row); }
    conformance::ShownProgress Progress(ControlId bar) override {
        const headless::HeadlessProgress progress = m_view.Progress(bar);
        return {progress.maximum, progress.position};
    }
    bool IsShownChecked(ControlId box) override { return m_view.IsChecked(box); }
    std::vector<std::string> ShownChoices(ControlId list) override { return m_view.Choices(list); }
    std::optional<panel::StandardIcon> ShownIcon(ControlId id) override { return m_view.Icon(id); }
    std::vector<ControlId> StackingOrder() override { return m_view.StackingOrder(); }
    panel::Rectangle ScreenRectangle(ControlId id) override { return m_view.ScreenRectangle(id); }

private:
    headless::CHeadlessView& m_view;
};

class CHeadlessFileDialogUser : public conformance::IFileDialogUser {
public:
    CHeadlessFileDialogUser(headless::CHeadlessFileDialog& dialog, IViewUser* options)
        : m_dialog(dialog), m_options(options) {}

    IViewUser& Options() override { return *m_options; }
    bool Accept(const std::string& path) override { return m_dialog.Accept(path); }
    void Cancel() override { m_dialog.Cancel(); }

    std::string ShownTitle() override { return m_dialog.Dialog().title; }
    std::string ShownName() override { return m_dialog.Dialog().fileName; }
    std::vector<std::string> ShownFilters() override {
        std::vector<std::string> shown;
        for (const panel::FileFilter& filter : m_dialog.Dialog().filters) {
            shown.push_back(filter.description);
        }
        return shown;
    }

private:
    headless::CHeadlessFileDialog& m_dialog;
    IViewUser* m_options;
};

class CHeadlessFrontEndDriver : public conformance::IFrontEndDriver {
public:
    ~CHeadlessFrontEndDriver() override {
        for (const std::string& prompt : m_desktop->prompts.UnexpectedPrompts()) {
            ADD_FAILURE() << "unexpected " << prompt;
        }
        EXPECT_EQ(m_desktop->prompts.PendingAnswers(), 0u);
    }

    panel::IToolkit& Toolkit() override { return m_toolkit; }

    std::unique_ptr<panel::IView> CreateView(const panel::DialogTemplate& dialogTemplate,
                                             panel::IDialogHandler& handler) override {
        return m_toolkit.CreateView(dialogTemplate, nullptr, handler);
    }
    std::unique_ptr<panel::IView> CreateViewInVain(const panel::DialogTemplate& dialogTemplate,
                                                   panel::IDialogHandler& handler) override {
        m_desktop->failingViews = 1;
        return m_toolkit.CreateView(dialogTemplate, nullptr, handler);
    }
    // A later view may be made where an earlier one was, so a user is never kept for its address.
    IViewUser& UserOf(panel::IView& view) override {
        m_users.push_back(
            std::make_unique<CHeadlessViewUser>(dynamic_cast<headless::CHeadlessView&>(view)));
        return *m_users.back();
    }

    void ExpectBox(std::int32_t button, std::function<void()> whileOpen) override {
        m_desktop->prompts.Answer(button, std::move(whileOpen));
    }
    void ExpectBoxAndEscape() override { m_desktop->prompts.AnswerWithEscape(); }
    void ExpectDialog(std::function<void(IViewUser&)> act) override {
        m_desktop->prompts.AnswerDialog(
            [this, act](headless::CHeadlessView& view) { act(UserOf(view)); });
    }
    void ExpectMenu(int command, std::function<void()> whileOpen) override {
        m_desktop->prompts.AnswerMenu(command, std::move(whileOpen));
    }
    void ExpectFileDialog(std::function<void(conformance::IFileDialogUser&)> act) override {
        m_desktop->prompts.AnswerFileDialog([this, act](headless::CHeadlessFileDialog& dialog) {
            CHeadlessFileDialogUser user(dialog,
                                         dialog.Options() ? &UserOf(*dialog.Options()) : nullptr);
            act(user);
        });
    }
    void ExpectFileRefusal() override {} // a path that is too long ends the dialog with an error
    std::vector<conformance::ShownMenu> Menus() override {
        std::vector<conformance::ShownMenu> menus;
        for (const headless::ShownMenu& menu : m_desktop->prompts.Menus()) {
            menus.push_back({menu.items, menu.screen});
        }
        return menus;
    }
    std::vector<conformance::ShownBox> Boxes() override {
        std::vector<conformance::ShownBox> boxes;
        std::ranges::transform(m_desktop->prompts.Boxes(), std::back_inserter(boxes), AsShown);
        return boxes;
    }

    bool IsWaitCursorShown() override { return m_desktop->cursorDepth > 0; }
    bool IsHelpViewerShown() override { return !m_desktop->helps.empty(); }

private:
    std::shared_ptr<headless::HeadlessDesktop> m_desktop =
        std::make_shared<headless::HeadlessDesktop>();
    headless::CHeadlessToolkit m_toolkit{m_desktop};
    std::vector<std::unique_ptr<CHeadlessViewUser>> m_users;
};

}

namespace conformance {

std::unique_ptr<IFrontEndDriver> MakeDriver() {
    return std::make_unique<CHeadlessFrontEndDriver>();
}

}
