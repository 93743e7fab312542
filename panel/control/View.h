#pragma once

#include "panel/control/DialogTemplate.h"
#include "panel/control/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace panel {

inline constexpr std::size_t kNoTextLimit = std::numeric_limits<std::size_t>::max();

/// No row of a list.
inline constexpr int kNoRow = -1;

enum class Alignment { Left, Right };

/// No choice of a drop-down list.
inline constexpr int kNoChoice = -1;

/// Icons that every toolkit has of its own.
enum class StandardIcon { Information, Warning };

struct ListColumn {
    const char* heading;
    int widthPixels;
    Alignment alignment;
};

/// The controls of one view, addressed by id: everything a front end implements for a view.
///
/// A front end decides nothing. A verb given kNoControl, the id of a control that the view does not
/// have, or a row or column that the list does not have does nothing; a question then answers
/// empty, false, 0 or kNoRow. Texts are UTF-8; invalid bytes are shown as replacement characters,
/// never refused. Lengths and positions are pixels relative to the view's client area. Verbs never
/// call the handler back (see DialogHandler.h), except SetSize, which reports the new size.
/// User-interface thread only.
class IView {
public:
    virtual ~IView() = default;

    // Any control

    /// Returns `id` when the view has such a control, else kNoControl.
    virtual ControlId Capture(ControlId id) = 0;
    /// "&" is shown as it is, never as the mark of a mnemonic. For a group box its title.
    /// Nothing for what has verbs of its own: log, lists, address fields, drop-down lists, icons,
    /// progress bars.
    virtual void SetText(ControlId id, std::string_view text) = 0;
    /// For the log: all of its text, lines ended by CR LF.
    virtual std::string GetText(ControlId id) const = 0;
    virtual void SetEnabled(ControlId id, bool enabled) = 0;
    virtual bool IsEnabled(ControlId id) const = 0;
    virtual void SetVisible(ControlId id, bool visible) = 0;
    /// Whether the control itself is set to be visible, also while its view is not shown.
    virtual bool IsVisible(ControlId id) const = 0;
    /// Gives the keyboard focus. A control that is disabled gets it when it becomes enabled, unless
    /// another one has got it since.
    virtual void SetFocus(ControlId id) = 0;
    /// The control that has, or is next to get, the keyboard focus; kNoControl when none.
    virtual ControlId GetFocus() const = 0;

    // Geometry

    virtual Size GetClientSize() const = 0;
    /// Sets the size of the view itself and reports it to the handler when it differs.
    virtual void SetSize(Size size) = 0;
    virtual Rectangle GetRectangle(ControlId id) const = 0;
    /// Places a control, keeping its stacking order, and has its frame computed anew.
    virtual void Move(ControlId id, const Rectangle& rectangle) = 0;
    /// The place on the screen of a point inside a control's client area.
    virtual Point ToScreen(ControlId id, Point inControl) const = 0;

    // List

    /// `index` is from 0 to the number of columns.
    virtual void InsertColumn(ControlId list, int index, const ListColumn& column) = 0;
    /// Inserts a row whose first cell is `text`, with key 0, before row `index` (at the end when
    /// there is none), and returns its index.
    virtual int InsertRow(ControlId list, int index, std::string_view text) = 0;
    virtual void SetCell(ControlId list, int row, int column, std::string_view text) = 0;
    virtual std::string GetCell(ControlId list, int row, int column) const = 0;
    virtual void SetRowKey(ControlId list, int row, std::uint32_t key) = 0;
    virtual std::uint32_t GetRowKey(ControlId list, int row) const = 0;
    /// Leaves no row, no selection, no mark and no focused row; columns stay.
    virtual void RemoveAllRows(ControlId list) = 0;
    virtual int GetRowCount(ControlId list) const = 0;
    /// Selects or deselects one row beside those already selected (a single-selection list
    /// deselects the others). Neither mark nor focused row moves.
    virtual void SelectRow(ControlId list, int row, bool selected) = 0;
    /// The selected rows in list order.
    virtual std::vector<int> GetSelectedRows(ControlId list) const = 0;
    /// The row from which the user extends a selection.
    virtual void SetSelectionMark(ControlId list, int row) = 0;
    virtual int GetSelectionMark(ControlId list) const = 0;
    /// The row with the item focus (the user's last row), whether selected or not.
    virtual int GetFocusedRow(ControlId list) const = 0;
    virtual void EnsureRowVisible(ControlId list, int row) = 0;
    /// The top left corner of a row inside the list, outside the client area for a row that is
    /// scrolled out of sight; nothing when there is no such row.
    virtual std::optional<Point> GetRowPosition(ControlId list, int row) const = 0;
    /// The area that shows the rows, column headings included.
    virtual Size GetListClientSize(ControlId list) const = 0;

    // Log

    /// How many characters the log takes; what is there stays. At first the toolkit's own limit.
    virtual void SetTextLimit(ControlId id, std::size_t characters) = 0;
    /// Appends at the very end, selects nothing and scrolls there. `text` carries its CR LF.
    virtual void AppendLog(ControlId log, std::string_view text) = 0;
    /// Selects all text and replaces it with nothing.
    virtual void ClearLog(ControlId log) = 0;

    // Check box

    virtual void SetChecked(ControlId box, bool checked) = 0;
    virtual bool IsChecked(ControlId box) const = 0;

    // Address field

    /// The address as a number whose highest eight bits are its first part: 192.168.0.1 is
    /// 0xC0A80001.
    virtual void SetAddress(ControlId field, std::uint32_t address) = 0;
    /// Parts that the user has left empty count as 0.
    virtual std::uint32_t GetAddress(ControlId field) const = 0;

    // Drop-down list

    /// Appends a choice that carries `data` and returns its index, or kNoChoice without a list.
    virtual int AddChoice(ControlId list, std::string_view text, std::int32_t data) = 0;
    /// kNoChoice, or an index that the list does not have, leaves nothing chosen.
    virtual void SelectChoice(ControlId list, int index) = 0;
    virtual int GetSelectedChoice(ControlId list) const = 0;
    /// Nothing when it cannot be read.
    virtual std::optional<std::int32_t> GetChoiceData(ControlId list, int index) const = 0;

    // Icon

    /// Returns 0, or the system's error number when the icon cannot be had; the control then shows
    /// none.
    virtual int SetIcon(ControlId id, StandardIcon icon) = 0;

    // Progress bar

    virtual void SetProgressRange(ControlId bar, int maximum) = 0;
    virtual void SetProgressPosition(ControlId bar, int position) = 0;

    // Modal dialog

    /// Ends the modal dialog that the view belongs to; RunDialog returns `result`. Nothing for
    /// another view.
    virtual void EndDialog(int result) = 0;
};

}
