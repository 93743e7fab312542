#pragma once

#include "frontend/headless/WindowStack.h"
#include "panel/control/Toolkit.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace headless {

class CHeadlessView;

struct ShownBox {
    std::string text;
    std::string caption;
    std::uint32_t style = 0;
    std::int32_t answer = 0;

    friend bool operator==(const ShownBox&, const ShownBox&) = default;
};

struct ShownDialog {
    int templateId = 0;
    panel::Owner owner = panel::Owner::None;
    panel::DialogOutcome outcome;

    friend bool operator==(const ShownDialog&, const ShownDialog&) = default;
};

/// Stands for the person who answers boxes and dialogs: answers are queued beforehand and taken in
/// the order in which prompts are shown.
///
/// A prompt for which no fitting answer is next is unexpected: it is noted and answered as Escape
/// would, and the answers stay queued. A test fails when UnexpectedPrompts() is not empty or
/// PendingAnswers() not 0 in the end.
class CPromptQueue {
public:
    using WhileOpen = std::function<void()>;
    using DialogScript = std::function<void(CHeadlessView&)>;

    /// The next prompt is a box; `whileOpen` runs while it is open, then `button` is pressed: 1 OK,
    /// 6 Yes, 7 No. A button that the box does not have makes the box an unexpected one.
    void Answer(std::int32_t button, WhileOpen whileOpen = {});
    /// The next prompt is a box, answered with Escape: OK or No.
    void AnswerWithEscape();
    /// The next prompt is a dialog; `script` runs when it is shown. One that is still open
    /// thereafter is closed as by Escape, and by force with result 2 if its handler ignores that.
    void AnswerDialog(DialogScript script = {});
    /// The next dialog cannot be made: RunDialog fails with `code` and OnInit is not called.
    void FailDialog(int code);
    /// From now on nobody is there: boxes are answered OK or No, dialogs closed as by Escape, and
    /// no prompt counts as unexpected.
    void LeaveUnattended() { m_isAttended = false; }

    /// All that was shown, in the order in which it was opened.
    const std::vector<ShownBox>& Boxes() const { return m_boxes; }
    const std::vector<ShownDialog>& Dialogs() const { return m_dialogs; }
    /// One line for each unexpected prompt.
    const std::vector<std::string>& UnexpectedPrompts() const { return m_unexpected; }
    std::size_t PendingAnswers() const { return m_steps.size(); }

    // For the toolkit

    std::int32_t ShowBox(const std::string& text, const std::string& caption, std::uint32_t style,
                         CWindowStack& windows);
    /// The error number when the next dialog cannot be made, which is then noted as shown.
    std::optional<int> TakeDialogFailure(int templateId, panel::Owner owner);
    /// Has the user close a dialog that has been initialised; returns its result.
    int ActInDialog(CHeadlessView& view, panel::Owner owner);

private:
    enum class Kind { Box, Dialog, DialogFailure };

    struct Step {
        Kind kind;
        std::int32_t code = 0; // button or error number
        WhileOpen whileOpen;
        DialogScript script;
    };

    std::optional<Step> TakeStep(Kind kind);
    std::optional<Step> TakeBoxStep(std::uint32_t style);
    void NoteUnexpected(const std::string& prompt);

    std::deque<Step> m_steps;
    bool m_isAttended = true;
    std::vector<ShownBox> m_boxes;
    std::vector<ShownDialog> m_dialogs;
    std::vector<std::string> m_unexpected;
};

}
