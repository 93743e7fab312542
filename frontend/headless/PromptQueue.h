#pragma once

#include "frontend/headless/HeadlessFileDialog.h"
#include "frontend/headless/WindowStack.h"
#include "panel/control/FileDialog.h"
#include "panel/control/PopupMenu.h"
#include "panel/control/Toolkit.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <span>
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

struct ShownMenu {
    std::vector<panel::MenuItem> items;
    panel::Point screen;
    int command = panel::kNoCommand;

    friend bool operator==(const ShownMenu&, const ShownMenu&) = default;
};

struct ShownFileDialog {
    FileDialogKind kind = FileDialogKind::Open;
    panel::FileDialog dialog; ///< its handler may have ended since
    panel::FileOutcome outcome;
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
    using FileScript = std::function<void(CHeadlessFileDialog&)>;

    /// The next prompt is a box; `whileOpen` runs while it is open, then `button` is pressed: 1 OK,
    /// 6 Yes, 7 No. A button that the box does not have makes the box an unexpected one.
    void Answer(std::int32_t button, WhileOpen whileOpen = {});
    /// The next prompt is a box, answered with Escape: OK or No.
    void AnswerWithEscape();
    /// The next prompt is a dialog; `script` runs when it is shown. One that is still open
    /// thereafter is closed as by Escape, and by force with result 2 if its handler ignores that.
    void AnswerDialog(DialogScript script = {});
    /// From now on dialogs of that template are answered by pressing `button`, unless an answer for
    /// a dialog is next; kNoControl ends that.
    void AnswerAlways(int templateId, panel::ControlId button);
    /// The next dialog cannot be made: RunDialog fails with `code` and OnInit is not called.
    void FailDialog(int code);
    /// The next prompt is a menu; `whileOpen` runs while it is open, then the item with that
    /// command is chosen, or none for kNoCommand. A command that the menu does not have makes the
    /// menu an unexpected one.
    void AnswerMenu(int command, WhileOpen whileOpen = {});
    /// The next menu cannot be created.
    void FailMenu(int error);
    /// The next prompt is an open or save dialog; `script` runs while it is open. One that is still
    /// open thereafter is cancelled.
    void AnswerFileDialog(FileScript script);
    /// The same, with a script that names the file and accepts.
    void ChooseFile(const std::string& path);
    void CancelFileDialog();

    /// All that was shown, in the order in which it was opened.
    const std::vector<ShownBox>& Boxes() const { return m_boxes; }
    const std::vector<ShownDialog>& Dialogs() const { return m_dialogs; }
    const std::vector<ShownMenu>& Menus() const { return m_menus; }
    const std::vector<ShownFileDialog>& FileDialogs() const { return m_fileDialogs; }
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

    /// The error number when the next menu cannot be created.
    std::optional<int> TakeMenuFailure();
    int ShowMenu(std::span<const panel::MenuItem> items, panel::Point screen,
                 CWindowStack& windows);
    /// Has the user end a file dialog.
    panel::FileOutcome ActInFileDialog(CHeadlessFileDialog& dialog);

private:
    enum class Kind { Box, Dialog, DialogFailure, Menu, MenuFailure, File };

    struct Step {
        Kind kind;
        std::int32_t code = 0; // button, command or error number
        WhileOpen whileOpen = {};
        DialogScript script = {};
        FileScript fileScript = {};
    };

    std::optional<Step> TakeStep(Kind kind);
    std::optional<Step> TakeBoxStep(std::uint32_t style);
    std::optional<Step> TakeMenuStep(std::span<const panel::MenuItem> items);
    /// False when there is none for that dialog.
    bool GiveStandingAnswer(CHeadlessView& view) const;

    std::deque<Step> m_steps;
    std::map<int, panel::ControlId> m_standingAnswers; // by template
    std::vector<ShownBox> m_boxes;
    std::vector<ShownDialog> m_dialogs;
    std::vector<ShownMenu> m_menus;
    std::vector<ShownFileDialog> m_fileDialogs;
    std::vector<std::string> m_unexpected;
};

}
