#pragma once

#include "panel/control/DialogTemplate.h"
#include "panel/control/FileDialog.h"
#include "panel/control/Geometry.h"
#include "panel/control/PopupMenu.h"
#include "panel/control/Toolkit.h"
#include "panel/control/View.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace conformance {

enum class Modifier { None, Shift, Control };

/// A column as the user sees it.
struct ShownColumn {
    std::string heading;
    int widthPixels = 0;
    panel::Alignment alignment = panel::Alignment::Left;

    friend bool operator==(const ShownColumn&, const ShownColumn&) = default;
};

struct ShownProgress {
    int maximum = 0;
    int position = 0;

    friend bool operator==(const ShownProgress&, const ShownProgress&) = default;
};

/// A plain box as the user saw it; lines of `text` are ended by LF, whatever the caller sent.
struct ShownBox {
    std::string text;
    std::string caption;
    std::uint32_t style = 0;

    friend bool operator==(const ShownBox&, const ShownBox&) = default;
};

/// A pop-up menu as the user saw it; "&" marks mnemonics.
struct ShownMenu {
    std::vector<panel::MenuItem> items;
    panel::Point corner; ///< on the screen, the upper left one

    friend bool operator==(const ShownMenu&, const ShownMenu&) = default;
};

/// Eyes and hands of the user on one open view.
///
/// The hands go the way of real input as far as the front end has one (mouse and key events sent
/// to the widget), and are finished, with all their consequences delivered, when they return. Those
/// that return bool answer false, and do nothing, when a user could not do it because the control
/// is missing, disabled or hidden. The view may be destroyed from inside any of them.
class IViewUser {
public:
    virtual ~IViewUser() = default;

    // Hands

    /// Clicks a button.
    virtual bool Press(panel::ControlId button) = 0;
    /// Alt and a letter ('a' to 'z', '0' to '9').
    virtual bool PressMnemonic(char letter) = 0;
    /// Gives the list the focus and presses a key, named by its virtual-key code: letters, digits,
    /// arrows, Home, End, Insert, Delete, F2 to F12 and the context-menu key are used.
    virtual bool PressKeyInList(panel::ControlId list, std::uint16_t virtualKey) = 0;
    /// Clicks a row's first cell, scrolling there if need be.
    virtual bool ClickRow(panel::ControlId list, int row, Modifier modifier = Modifier::None) = 0;
    /// The same with the right button; kNoRow clicks the empty space below the rows.
    virtual bool RightClickRow(panel::ControlId list, int row) = 0;
    /// Clicks a check box.
    virtual bool Toggle(panel::ControlId box) = 0;
    /// Types over whatever an edit field holds.
    virtual bool TypeText(panel::ControlId field, std::string_view text) = 0;
    virtual bool TypeAddress(panel::ControlId field, std::uint32_t address) = 0;
    /// Chooses from a drop-down list by the text of the choice.
    virtual bool Choose(panel::ControlId list, std::string_view text) = 0;
    /// F1.
    virtual void RequestHelp() = 0;
    /// Moves the focus to the next control of the tab order.
    virtual void PressTab() = 0;
    /// Return and Escape, and the close box of a dialog.
    virtual void PressReturn() = 0;
    virtual void PressEscape() = 0;
    virtual void PressCloseBox() = 0;

    // Eyes

    virtual std::string ShownTitle() = 0;
    /// A label, button or group box without its mnemonic mark (an ampersand that the user reads as
    /// one included); a field's text; the log's text with its lines ended by CR LF.
    virtual std::string ShownText(panel::ControlId id) = 0;
    virtual std::vector<ShownColumn> ShownColumns(panel::ControlId list) = 0;
    virtual std::string ShownCell(panel::ControlId list, int row, int column) = 0;
    virtual bool IsRowInSight(panel::ControlId list, int row) = 0;
    virtual ShownProgress Progress(panel::ControlId bar) = 0;
    virtual bool IsShownChecked(panel::ControlId box) = 0;
    /// The texts of a drop-down list.
    virtual std::vector<std::string> ShownChoices(panel::ControlId list) = 0;
    virtual std::optional<panel::StandardIcon> ShownIcon(panel::ControlId id) = 0;
    /// The controls from the lowest to the topmost.
    virtual std::vector<panel::ControlId> StackingOrder() = 0;
    /// Where a control is in the coordinates of OnListRightClick.
    virtual panel::Rectangle ScreenRectangle(panel::ControlId id) = 0;
};

/// Eyes and hands of the user on an open file dialog.
class IFileDialogUser {
public:
    virtual ~IFileDialogUser() = default;

    /// The user of the controls of our own in it.
    virtual IViewUser& Options() = 0;
    /// Types a path over what stands there and presses the button that takes it. False when the
    /// dialog stays open.
    virtual bool Accept(const std::string& path) = 0;
    virtual void Cancel() = 0;

    virtual std::string ShownTitle() = 0;
    /// The name that is proposed, without a folder.
    virtual std::string ShownName() = 0;
    /// The descriptions of the file types to choose from.
    virtual std::vector<std::string> ShownFilters() = 0;
};

/// What a front end offers to be tested: every executable that links the suite defines MakeDriver.
///
/// Prompts are expected before the call that shows them, in their order; an expectation that is
/// left over, or a prompt that nobody expected, is a test failure reported by the driver (an
/// unexpected prompt is dismissed as by Escape, so that the test ends).
class IFrontEndDriver {
public:
    virtual ~IFrontEndDriver() = default;

    virtual panel::IToolkit& Toolkit() = 0;

    /// Makes a panel view through the toolkit and shows it in an active window.
    virtual std::unique_ptr<panel::IView> CreateView(const panel::DialogTemplate& dialogTemplate,
                                                     panel::IDialogHandler& handler) = 0;
    /// The same where the system cannot make a view: returns what the toolkit returned.
    virtual std::unique_ptr<panel::IView>
    CreateViewInVain(const panel::DialogTemplate& dialogTemplate,
                     panel::IDialogHandler& handler) = 0;
    /// The user of a view made above, or of the view that a dialog's OnInit was given. Lives as
    /// long as the driver; only its view must still be there when it is used.
    virtual IViewUser& UserOf(panel::IView& view) = 0;

    /// The next prompt is a plain box: `whileOpen` runs while it is shown, then `button` (1 OK, 6
    /// Yes, 7 No) is pressed.
    virtual void ExpectBox(std::int32_t button, std::function<void()> whileOpen = {}) = 0;
    /// The same, answered with Escape.
    virtual void ExpectBoxAndEscape() = 0;
    /// The next prompt is a dialog: `act` runs while it is shown. A dialog that is open thereafter
    /// is closed with Escape and, if it does not heed that, ended with result 2.
    virtual void ExpectDialog(std::function<void(IViewUser&)> act) = 0;
    /// The next prompt is a pop-up menu: `whileOpen` runs while it is shown, then the item with
    /// that command is clicked with the left button, or none for kNoCommand.
    virtual void ExpectMenu(int command, std::function<void()> whileOpen = {}) = 0;
    /// The next prompt is a file dialog: `act` runs while it is shown. A dialog that is open
    /// thereafter is cancelled.
    virtual void ExpectFileDialog(std::function<void(IFileDialogUser&)> act) = 0;
    /// Where the file dialog itself says why it does not take a path, and stays open, that is what
    /// comes next, and it is dismissed.
    virtual void ExpectFileRefusal() = 0;
    /// The boxes shown so far.
    virtual std::vector<ShownBox> Boxes() = 0;
    virtual std::vector<ShownMenu> Menus() = 0;

    /// Whether a file can be opened by a name typed without the default extension. Not in a system
    /// whose dialog looks for the file before it adds the extension.
    virtual bool OpensByCompletedName() { return true; }

    virtual bool IsWaitCursorShown() = 0;
    virtual bool IsHelpViewerShown() = 0;
};

/// A fresh front end for one test.
std::unique_ptr<IFrontEndDriver> MakeDriver();

}
