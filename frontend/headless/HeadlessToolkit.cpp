#include "frontend/headless/HeadlessToolkit.h"

#include "frontend/headless/HeadlessFileDialog.h"

#include <algorithm>
#include <utility>

namespace headless {

namespace {

constexpr panel::FontMetrics kFont{.alphabetWidth = 364, .height = 13};

class CHeadlessMenu final : public panel::IPopupMenu {
public:
    explicit CHeadlessMenu(std::shared_ptr<HeadlessDesktop> desktop)
        : m_desktop(std::move(desktop)) {}

    int Show(std::span<const panel::MenuItem> items, panel::Point screen) override {
        const std::shared_ptr<HeadlessDesktop> desktop = m_desktop;
        return desktop->prompts.ShowMenu(items, screen, desktop->windows);
    }

private:
    std::shared_ptr<HeadlessDesktop> m_desktop;
};

// The part of the desktop that a view needs, kept alive with the whole.
std::shared_ptr<CWindowStack> WindowsOf(const std::shared_ptr<HeadlessDesktop>& desktop) {
    return {desktop, &desktop->windows};
}

}

CHeadlessToolkit::CHeadlessToolkit() : CHeadlessToolkit(std::make_shared<HeadlessDesktop>()) {}

CHeadlessToolkit::CHeadlessToolkit(std::shared_ptr<HeadlessDesktop> desktop)
    : m_desktop(std::move(desktop)) {}

std::unique_ptr<panel::IView>
CHeadlessToolkit::CreateView(const panel::DialogTemplate& dialogTemplate, void*,
                             panel::IDialogHandler& handler) {
    if (m_desktop->failingViews > 0) {
        --m_desktop->failingViews;
        return nullptr;
    }
    auto view = std::make_unique<CHeadlessView>(dialogTemplate, kFont, handler,
                                                WindowsOf(m_desktop), ViewKind::Panel);
    handler.OnInit(*view);
    return view;
}

panel::DialogOutcome CHeadlessToolkit::RunDialog(const panel::DialogTemplate& dialogTemplate,
                                                 panel::IDialogHandler& handler,
                                                 panel::Owner owner) {
    // The panel, and this toolkit with it, may end while the dialog is open.
    const std::shared_ptr<HeadlessDesktop> desktop = m_desktop;
    if (const auto failure = desktop->prompts.TakeDialogFailure(dialogTemplate.id, owner)) {
        return panel::DialogOutcome::Failed(*failure);
    }
    CHeadlessView view(dialogTemplate, kFont, handler, WindowsOf(desktop), ViewKind::Dialog);
    view.FailIcons(desktop->iconError);
    handler.OnInit(view);
    return panel::DialogOutcome::Closed(desktop->prompts.ActInDialog(view, owner));
}

std::int32_t CHeadlessToolkit::ShowBox(const std::string& text, const std::string& caption,
                                       std::uint32_t style) {
    const std::shared_ptr<HeadlessDesktop> desktop = m_desktop;
    return desktop->prompts.ShowBox(text, caption, style, desktop->windows);
}

std::unique_ptr<panel::IPopupMenu> CHeadlessToolkit::CreatePopupMenu(int& error) {
    if (const auto failure = m_desktop->prompts.TakeMenuFailure()) {
        error = *failure;
        return nullptr;
    }
    return std::make_unique<CHeadlessMenu>(m_desktop);
}

panel::FileOutcome CHeadlessToolkit::OpenFile(const panel::FileDialog& dialog) {
    return RunFileDialog(dialog, FileDialogKind::Open);
}

panel::FileOutcome CHeadlessToolkit::SaveFile(const panel::FileDialog& dialog) {
    return RunFileDialog(dialog, FileDialogKind::Save);
}

panel::FileOutcome CHeadlessToolkit::RunFileDialog(const panel::FileDialog& dialog,
                                                   FileDialogKind kind) {
    const std::shared_ptr<HeadlessDesktop> desktop = m_desktop;
    if (!dialog.optionsTemplate) {
        const CWindowStack::BoxScope isOpen(desktop->windows);
        CHeadlessFileDialog user(kind, dialog, nullptr);
        return desktop->prompts.ActInFileDialog(user);
    }
    CHeadlessView options(*dialog.optionsTemplate, kFont, *dialog.optionsHandler,
                          WindowsOf(desktop), ViewKind::Options);
    dialog.optionsHandler->OnInit(options);
    CHeadlessFileDialog user(kind, dialog, &options);
    return desktop->prompts.ActInFileDialog(user);
}

void CHeadlessToolkit::PushWaitCursor() {
    ++m_desktop->cursorDepth;
    m_desktop->highestCursorDepth = std::max(m_desktop->highestCursorDepth, m_desktop->cursorDepth);
}

void CHeadlessToolkit::PopCursor() { --m_desktop->cursorDepth; }

void CHeadlessToolkit::ShowHelp(const std::string& file, std::uint32_t context,
                                panel::Owner owner) {
    m_desktop->helps.push_back({file, context, owner});
}

panel::FontMetrics CHeadlessToolkit::MeasureFont() const { return kFont; }

void CHeadlessToolkit::Trace(const std::string& line) {
    const bool isEnded = line.ends_with('\n');
    m_desktop->traceLines.push_back(isEnded ? line.substr(0, line.size() - 1)
                                            : line + " (without newline)");
}

}
