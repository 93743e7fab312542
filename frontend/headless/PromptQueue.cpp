#include "frontend/headless/PromptQueue.h"

#include "frontend/headless/HeadlessView.h"
#include "panel/control/DialogHandler.h"

#include <algorithm>
#include <utility>

namespace headless {

namespace {

using panel::kNoButton;
using panel::kOkButton;
using panel::kYesButton;

constexpr std::int32_t kEscape = 0; // no button at all

// The bits of a box's style that choose its buttons, and the choice of Yes and No (winuser.h).
constexpr std::uint32_t kButtonsMask = 0xF;
constexpr std::uint32_t kYesAndNo = 4;

constexpr bool IsQuestion(std::uint32_t style) { return (style & kButtonsMask) == kYesAndNo; }

constexpr bool CanAnswer(std::uint32_t style, std::int32_t button) {
    if (button == kEscape) {
        return true;
    }
    return IsQuestion(style) ? button == kYesButton || button == kNoButton : button == kOkButton;
}

constexpr std::int32_t EscapeAnswer(std::uint32_t style) {
    return IsQuestion(style) ? kNoButton : kOkButton;
}

}

void CPromptQueue::Answer(std::int32_t button, WhileOpen whileOpen) {
    m_steps.push_back({.kind = Kind::Box, .code = button, .whileOpen = std::move(whileOpen)});
}

void CPromptQueue::AnswerWithEscape() { m_steps.push_back({.kind = Kind::Box, .code = kEscape}); }

void CPromptQueue::AnswerDialog(DialogScript script) {
    m_steps.push_back({.kind = Kind::Dialog, .script = std::move(script)});
}

void CPromptQueue::AnswerAlways(int templateId, panel::ControlId button) {
    m_standingAnswers[templateId] = button;
}

void CPromptQueue::FailDialog(int code) {
    m_steps.push_back({.kind = Kind::DialogFailure, .code = code});
}

void CPromptQueue::AnswerMenu(int command, WhileOpen whileOpen) {
    m_steps.push_back({.kind = Kind::Menu, .code = command, .whileOpen = std::move(whileOpen)});
}

void CPromptQueue::FailMenu(int error) {
    m_steps.push_back({.kind = Kind::MenuFailure, .code = error});
}

void CPromptQueue::AnswerFileDialog(FileScript script) {
    m_steps.push_back({.kind = Kind::File, .fileScript = std::move(script)});
}

void CPromptQueue::ChooseFile(const std::string& path) {
    AnswerFileDialog([path](CHeadlessFileDialog& dialog) { dialog.Accept(path); });
}

void CPromptQueue::CancelFileDialog() {
    AnswerFileDialog([](CHeadlessFileDialog& dialog) { dialog.Cancel(); });
}

std::int32_t CPromptQueue::ShowBox(const std::string& text, const std::string& caption,
                                   std::uint32_t style, CWindowStack& windows) {
    const std::optional<Step> step = TakeBoxStep(style);
    if (!step) {
        m_unexpected.push_back("box \"" + caption + "\": " + text);
    }
    const bool isButton = step && step->code != kEscape;
    const std::int32_t answer = isButton ? step->code : EscapeAnswer(style);
    m_boxes.push_back({text, caption, style, answer});
    const CWindowStack::BoxScope isOpen(windows);
    if (step && step->whileOpen) {
        step->whileOpen();
    }
    return answer;
}

std::optional<int> CPromptQueue::TakeDialogFailure(int templateId, panel::Owner owner) {
    const std::optional<Step> step = TakeStep(Kind::DialogFailure);
    if (!step) {
        return std::nullopt;
    }
    m_dialogs.push_back({templateId, owner, panel::DialogOutcome::Failed(step->code)});
    return step->code;
}

int CPromptQueue::ActInDialog(CHeadlessView& view, panel::Owner owner) {
    const std::size_t position = m_dialogs.size();
    m_dialogs.push_back({view.Template().id, owner, {}});
    // One that its own OnInit has ended never appears, so nobody answers it.
    if (!view.DialogResult()) {
        const std::optional<Step> step = TakeStep(Kind::Dialog);
        if (!step && !GiveStandingAnswer(view)) {
            m_unexpected.push_back("dialog " + std::to_string(view.Template().id));
        } else if (step && step->script) {
            step->script(view);
        }
        view.PressEscape();
    }
    const int result = view.DialogResult().value_or(panel::kCancelButton);
    m_dialogs[position].outcome = panel::DialogOutcome::Closed(result);
    return result;
}

std::optional<int> CPromptQueue::TakeMenuFailure() {
    const std::optional<Step> step = TakeStep(Kind::MenuFailure);
    return step ? std::optional(step->code) : std::nullopt;
}

int CPromptQueue::ShowMenu(std::span<const panel::MenuItem> items, panel::Point screen,
                           CWindowStack& windows) {
    const std::optional<Step> step = TakeMenuStep(items);
    if (!step) {
        m_unexpected.push_back("menu of " + std::to_string(items.size()) + " lines");
    }
    const int command = step ? step->code : panel::kNoCommand;
    m_menus.push_back({{items.begin(), items.end()}, screen, command});
    const CWindowStack::BoxScope isOpen(windows);
    if (step && step->whileOpen) {
        step->whileOpen();
    }
    return command;
}

panel::FileOutcome CPromptQueue::ActInFileDialog(CHeadlessFileDialog& dialog) {
    const std::size_t position = m_fileDialogs.size();
    m_fileDialogs.push_back({dialog.Kind(), dialog.Dialog(), {}});
    if (const std::optional<Step> step = TakeStep(Kind::File)) {
        step->fileScript(dialog);
    } else {
        m_unexpected.push_back("file dialog \"" + dialog.Dialog().title + "\"");
    }
    dialog.Cancel();
    m_fileDialogs[position].outcome = dialog.Outcome();
    return dialog.Outcome();
}

std::optional<CPromptQueue::Step> CPromptQueue::TakeStep(Kind kind) {
    if (m_steps.empty() || m_steps.front().kind != kind) {
        return std::nullopt;
    }
    Step step = std::move(m_steps.front());
    m_steps.pop_front();
    return step;
}

std::optional<CPromptQueue::Step> CPromptQueue::TakeBoxStep(std::uint32_t style) {
    const bool fits = !m_steps.empty() && CanAnswer(style, m_steps.front().code);
    return fits ? TakeStep(Kind::Box) : std::nullopt;
}

std::optional<CPromptQueue::Step>
CPromptQueue::TakeMenuStep(std::span<const panel::MenuItem> items) {
    const auto offers = [items](int command) {
        return command == panel::kNoCommand ||
               std::ranges::find(items, command, &panel::MenuItem::command) != items.end();
    };
    const bool fits = !m_steps.empty() && offers(m_steps.front().code);
    return fits ? TakeStep(Kind::Menu) : std::nullopt;
}

bool CPromptQueue::GiveStandingAnswer(CHeadlessView& view) const {
    const auto answer = m_standingAnswers.find(view.Template().id);
    return answer != m_standingAnswers.end() && view.Press(answer->second);
}

}
