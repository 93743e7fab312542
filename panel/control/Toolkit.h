#pragma once

#include "panel/control/DialogTemplate.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace panel {

class IDialogHandler;
class IPopupMenu;
class IRegistry;
class IView;
struct FileDialog;
struct FileOutcome;

/// The window that a dialog or a help window belongs to.
enum class Owner { None, Panel, PanelParent, ActiveWindow };

/// How a toolkit verb that shows a window ended.
struct DialogOutcome {
    enum class Kind { Closed, Failed };

    Kind kind = Kind::Closed;
    /// Closed: the result given to EndDialog. Failed: the system's error number.
    int code = 0;

    static constexpr DialogOutcome Closed(int result) { return {Kind::Closed, result}; }
    static constexpr DialogOutcome Failed(int error) { return {Kind::Failed, error}; }

    friend constexpr bool operator==(const DialogOutcome&, const DialogOutcome&) = default;
};

/// A moment as the user reads it, in the default short formats of the user's locale. UTF-8.
struct LocalTime {
    std::string date;
    std::string time;
};

/// What the panel needs of a toolkit besides the controls of a view. One toolkit object belongs to
/// one panel, which owns it. Texts are UTF-8. User-interface thread only; the modal verbs run an
/// event loop, so that device events reach the panel while they are open.
class IToolkit {
public:
    virtual ~IToolkit() = default;

    /// Builds the panel's view as a child of `nativeParent` (see contract/panel/Panel.h), calls the
    /// handler's OnInit and returns it; null when no view can be made (OnInit is then not called).
    /// The handler outlives the view.
    virtual std::unique_ptr<IView> CreateView(const DialogTemplate& dialogTemplate,
                                              void* nativeParent, IDialogHandler& handler) = 0;

    /// Builds a modal dialog, calls the handler's OnInit and waits until EndDialog.
    virtual DialogOutcome RunDialog(const DialogTemplate& dialogTemplate, IDialogHandler& handler,
                                    Owner owner) = 0;

    /// Shows a plain modal box without owner, with the icon and buttons of `style` (see
    /// contract/host/MessageService.h), and returns the button pressed: 1 OK, 6 Yes, 7 No. Escape
    /// answers No to a question. Texts are shown as they are, never as markup; CR LF and LF break
    /// lines.
    virtual std::int32_t ShowBox(const std::string& text, const std::string& caption,
                                 std::uint32_t style) = 0;

    /// Makes an empty pop-up menu; null, with the system's error number in `error` (0 when it names
    /// none), when none can be had.
    virtual std::unique_ptr<IPopupMenu> CreatePopupMenu(int& error) = 0;

    /// Lets the user choose a file. A system's dialog takes only one that exists; it may have gone
    /// by the time it is used, and a front end without a screen takes every name. So whoever uses
    /// the file finds out.
    virtual FileOutcome OpenFile(const FileDialog& dialog) = 0;
    /// Lets the user name a file, in a folder that exists as far as OpenFile's file does. A file
    /// that is there already is taken without a question.
    virtual FileOutcome SaveFile(const FileDialog& dialog) = 0;
    /// What stands between the folders of the paths that the file dialogs deliver.
    virtual char GetPathSeparator() const = 0;

    /// The process's current folder; empty when the system does not tell.
    virtual std::string GetCurrentFolder() const = 0;
    /// Replaces what is in the file at `path`, or makes the file. False when it cannot be opened,
    /// which leaves it as it is; errors while writing are ignored.
    virtual bool WriteFile(const std::string& path, std::string_view content) = 0;

    /// Now.
    virtual LocalTime GetLocalTime() const = 0;

    virtual IRegistry& Registry() = 0;

    /// Shows the wait cursor until the matching PopCursor. Calls nest.
    virtual void PushWaitCursor() = 0;
    virtual void PopCursor() = 0;

    /// Opens the help viewer on `file` at a topic. A missing file is the viewer's own to report.
    virtual void ShowHelp(const std::string& file, std::uint32_t context, Owner owner) = 0;

    /// The folder that holds the component itself, without a trailing separator.
    virtual std::string GetComponentFolder() const = 0;

    /// Measures the font that views are made with.
    virtual FontMetrics MeasureFont() const = 0;

    /// Writes one diagnostic line, which ends in a newline. Called in debug builds only.
    virtual void Trace(const std::string& line) = 0;
};

}
