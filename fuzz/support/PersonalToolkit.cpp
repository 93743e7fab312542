#include "fuzz/support/PersonalToolkit.h"

#include "frontend/headless/HeadlessFileDialog.h"
#include "fuzz/support/Require.h"

#include <utility>

namespace fuzz {

namespace {

using headless::CHeadlessView;
using headless::CWindowStack;
using headless::HeadlessDesktop;
using headless::ViewKind;

/// What a system says that has no memory left (ERROR_NOT_ENOUGH_MEMORY of winerror.h).
constexpr int kNoMemory = 8;

// Toolkit and panel may end while a prompt is open, so that what follows uses neither of them.

class CPersonalMenu final : public panel::IPopupMenu {
public:
    CPersonalMenu(std::shared_ptr<HeadlessDesktop> desktop, IPerson& person)
        : m_desktop(std::move(desktop)), m_person(person) {}

    int Show(std::span<const panel::MenuItem> items, panel::Point) override {
        const std::shared_ptr<HeadlessDesktop> desktop = m_desktop;
        const CWindowStack::BoxScope isOpen(desktop->windows);
        return m_person.ChooseCommand(items);
    }

private:
    const std::shared_ptr<HeadlessDesktop> m_desktop;
    IPerson& m_person;
};

std::shared_ptr<CWindowStack> WindowsOf(const std::shared_ptr<HeadlessDesktop>& desktop) {
    return {desktop, &desktop->windows};
}

}

panel::DialogOutcome CPersonalToolkit::RunDialog(const panel::DialogTemplate& dialogTemplate,
                                                 panel::IDialogHandler& handler, panel::Owner) {
    if (!m_person.CanMakePrompt()) {
        return panel::DialogOutcome::Failed(kNoMemory);
    }
    const std::shared_ptr<HeadlessDesktop> desktop = Desktop();
    IPerson& person = m_person;
    CHeadlessView view(dialogTemplate, MeasureFont(), handler, WindowsOf(desktop),
                       ViewKind::Dialog);
    view.FailIcons(desktop->iconError);
    handler.OnInit(view);
    if (!view.DialogResult()) {
        person.UseDialog(view);
    }
    view.PressEscape();
    Require(view.DialogResult().has_value(), "Escape leaves a dialog");
    return panel::DialogOutcome::Closed(*view.DialogResult());
}

std::int32_t CPersonalToolkit::ShowBox(const std::string& text, const std::string& caption,
                                       std::uint32_t style) {
    const std::shared_ptr<HeadlessDesktop> desktop = Desktop();
    const CWindowStack::BoxScope isOpen(desktop->windows);
    return m_person.AnswerBox({text, caption, "", style});
}

std::unique_ptr<panel::IPopupMenu> CPersonalToolkit::CreatePopupMenu(int& error) {
    if (!m_person.CanMakePrompt()) {
        error = kNoMemory;
        return nullptr;
    }
    return std::make_unique<CPersonalMenu>(Desktop(), m_person);
}

panel::FileOutcome CPersonalToolkit::OpenFile(const panel::FileDialog& dialog) {
    return RunFileDialog(dialog, headless::FileDialogKind::Open);
}

panel::FileOutcome CPersonalToolkit::SaveFile(const panel::FileDialog& dialog) {
    return RunFileDialog(dialog, headless::FileDialogKind::Save);
}

panel::FileOutcome CPersonalToolkit::RunFileDialog(const panel::FileDialog& dialog,
                                                   headless::FileDialogKind kind) {
    const std::shared_ptr<HeadlessDesktop> desktop = Desktop();
    IPerson& person = m_person;
    const auto use = [&](CHeadlessView* options) {
        headless::CHeadlessFileDialog user(kind, dialog, options);
        person.UseFileDialog(user);
        user.Cancel();
        return user.Outcome();
    };
    if (!dialog.optionsTemplate) {
        const CWindowStack::BoxScope isOpen(desktop->windows);
        return use(nullptr);
    }
    CHeadlessView options(*dialog.optionsTemplate, MeasureFont(), *dialog.optionsHandler,
                          WindowsOf(desktop), ViewKind::Options);
    dialog.optionsHandler->OnInit(options);
    return use(&options);
}

}
