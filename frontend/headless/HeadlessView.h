#pragma once

#include "frontend/headless/HeadlessControl.h"
#include "frontend/headless/WindowStack.h"
#include "panel/control/DialogHandler.h"
#include "panel/control/DialogTemplate.h"
#include "panel/control/View.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace headless {

/// Options are the controls of our own in a file dialog.
enum class ViewKind { Panel, Dialog, Options };

struct HeadlessProgress {
    int maximum = 0;
    int position = 0;

    friend bool operator==(const HeadlessProgress&, const HeadlessProgress&) = default;
};

/// A view whose controls are kept in memory, with a user's hands and eyes beside the verbs.
///
/// Hands do what a user could do with the same window, and answer false without doing anything when
/// a user could not: no such control, disabled, hidden, or another window open above this one. The
/// view may be destroyed from inside them.
class CHeadlessView final : public panel::IView {
public:
    /// Does not call the handler. The controls of the template, the handler and the windows outlive
    /// the view.
    CHeadlessView(const panel::DialogTemplate& dialogTemplate, panel::FontMetrics font,
                  panel::IDialogHandler& handler, std::shared_ptr<CWindowStack> windows,
                  ViewKind kind);
    ~CHeadlessView() override;
    CHeadlessView(const CHeadlessView&) = delete;
    CHeadlessView& operator=(const CHeadlessView&) = delete;

    // panel::IView

    panel::ControlId Capture(panel::ControlId id) override;
    void SetText(panel::ControlId id, std::string_view text) override;
    std::string GetText(panel::ControlId id) const override;
    void SetEnabled(panel::ControlId id, bool enabled) override;
    bool IsEnabled(panel::ControlId id) const override;
    void SetVisible(panel::ControlId id, bool visible) override;
    bool IsVisible(panel::ControlId id) const override;
    void SetFocus(panel::ControlId id) override;
    panel::ControlId GetFocus() const override;

    panel::Size GetClientSize() const override { return m_clientSize; }
    void SetSize(panel::Size size) override;
    panel::Rectangle GetRectangle(panel::ControlId id) const override;
    void Move(panel::ControlId id, const panel::Rectangle& rectangle) override;
    panel::Point ToScreen(panel::ControlId id, panel::Point inControl) const override;

    void InsertColumn(panel::ControlId list, int index, const panel::ListColumn& column) override;
    int InsertRow(panel::ControlId list, int index, std::string_view text) override;
    void SetCell(panel::ControlId list, int row, int column, std::string_view text) override;
    std::string GetCell(panel::ControlId list, int row, int column) const override;
    void SetRowKey(panel::ControlId list, int row, std::uint32_t key) override;
    std::uint32_t GetRowKey(panel::ControlId list, int row) const override;
    void RemoveAllRows(panel::ControlId list) override;
    int GetRowCount(panel::ControlId list) const override;
    void SelectRow(panel::ControlId list, int row, bool selected) override;
    std::vector<int> GetSelectedRows(panel::ControlId list) const override;
    void SetSelectionMark(panel::ControlId list, int row) override;
    int GetSelectionMark(panel::ControlId list) const override;
    int GetFocusedRow(panel::ControlId list) const override;
    void EnsureRowVisible(panel::ControlId list, int row) override;
    std::optional<panel::Point> GetRowPosition(panel::ControlId list, int row) const override;
    panel::Size GetListClientSize(panel::ControlId list) const override;

    void SetTextLimit(panel::ControlId id, std::size_t characters) override;
    void AppendLog(panel::ControlId log, std::string_view text) override;
    void ClearLog(panel::ControlId log) override;

    void SetChecked(panel::ControlId box, bool checked) override;
    bool IsChecked(panel::ControlId box) const override;

    void SetAddress(panel::ControlId field, std::uint32_t address) override;
    std::uint32_t GetAddress(panel::ControlId field) const override;

    int AddChoice(panel::ControlId list, std::string_view text, std::int32_t data) override;
    void SelectChoice(panel::ControlId list, int index) override;
    int GetSelectedChoice(panel::ControlId list) const override;
    std::optional<std::int32_t> GetChoiceData(panel::ControlId list, int index) const override;

    int SetIcon(panel::ControlId id, panel::StandardIcon icon) override;

    void SetProgressRange(panel::ControlId bar, int maximum) override;
    void SetProgressPosition(panel::ControlId bar, int position) override;

    void EndDialog(int result) override;

    // Hands

    bool Press(panel::ControlId button);
    /// Alt and a letter: presses the button, or toggles the check box, with that mnemonic.
    bool PressMnemonic(char letter);
    bool PressKeyInList(panel::ControlId list, std::uint16_t virtualKey);
    bool ClickRow(panel::ControlId list, int row, Modifier modifier = Modifier::None);
    /// kNoRow clicks the empty space below the rows.
    bool RightClick(panel::ControlId list, int row);
    /// Toggles a check box.
    bool Toggle(panel::ControlId box);
    /// Replaces the text of an edit field, cut to its limit.
    bool TypeText(panel::ControlId field, std::string_view text);
    bool TypeAddress(panel::ControlId field, std::uint32_t address);
    /// Chooses from a drop-down list by the text of the choice.
    bool Choose(panel::ControlId list, std::string_view text);
    /// F1.
    void RequestHelp();
    void PressTab();
    /// In a dialog; nothing in another view.
    void PressReturn();
    /// Escape or the close box; likewise.
    void PressEscape();
    /// Gives the view a new size and reports it when it differs.
    void ResizeClient(panel::Size size) { SetSize(size); }

    // Eyes

    const panel::DialogTemplate& Template() const { return m_template; }
    /// The controls captured, in order.
    const std::vector<panel::ControlId>& Captures() const { return m_captures; }
    /// How often a control's frame has been computed anew.
    int FrameComputations(panel::ControlId id) const;
    std::size_t TextLimit(panel::ControlId id) const;
    HeadlessProgress Progress(panel::ControlId bar) const;
    /// The controls from the lowest to the topmost.
    std::vector<panel::ControlId> StackingOrder() const;
    std::vector<HeadlessColumn> Columns(panel::ControlId list) const;
    bool IsRowInSight(panel::ControlId list, int row) const;
    panel::Rectangle ScreenRectangle(panel::ControlId id) const;
    /// The texts of a drop-down list.
    std::vector<std::string> Choices(panel::ControlId list) const;
    std::optional<panel::StandardIcon> Icon(panel::ControlId id) const;
    /// The lines of the log, without their CR LF.
    std::vector<std::string> LogLines(panel::ControlId log) const;
    /// The result once EndDialog has been called.
    std::optional<int> DialogResult() const { return m_result; }

    // What a system can refuse

    /// From now on SetIcon fails with `error`.
    void FailIcons(int error) { m_iconError = error; }
    /// From now on the data of that list's choices cannot be read.
    void LoseChoiceData(panel::ControlId list) { m_listsWithoutData.insert(list); }

private:
    void Register(HeadlessControl& control);
    const HeadlessControl* Find(panel::ControlId id) const;
    HeadlessControl* Find(panel::ControlId id);
    CHeadlessList* FindList(panel::ControlId id) const {
        return id < m_lists.size() ? m_lists[id] : nullptr;
    }
    /// The control when the user can use it now, else null.
    HeadlessControl* FindUsable(panel::ControlId id);
    /// The control when it is of that kind, else null.
    const HeadlessControl* Find(panel::ControlId id, panel::ControlKind kind) const;
    HeadlessControl* Find(panel::ControlId id, panel::ControlKind kind);
    HeadlessControl* Enter(panel::ControlId id, panel::ControlKind kind);
    CHeadlessList* EnterList(panel::ControlId id);
    bool TakesInput() const;
    void DeliverPendingFocus(const HeadlessControl& control);
    void WithdrawFocus(const HeadlessControl& control);

    panel::DialogTemplate m_template;
    panel::IDialogHandler& m_handler;
    std::shared_ptr<CWindowStack> m_windows;
    ViewKind m_kind;
    panel::Size m_clientSize;
    std::vector<HeadlessControl> m_controls;
    // By id; null where there is none. Finding a list must not be felt when it gets millions of
    // cells.
    std::vector<HeadlessControl*> m_controlsById;
    std::vector<CHeadlessList*> m_lists;
    std::vector<panel::ControlId> m_captures;
    panel::ControlId m_focus = panel::kNoControl;
    // Was given the focus while it could not take it.
    panel::ControlId m_pendingFocus = panel::kNoControl;
    std::optional<int> m_result;
    int m_iconError = 0;
    std::set<panel::ControlId> m_listsWithoutData;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};

}
