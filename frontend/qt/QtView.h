#pragma once

#include "panel/control/View.h"

#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <unordered_map>

class QWidget;

namespace panel {

class IDialogHandler;

}

namespace qt {

class CFocusMemory;
class CHandlerLink;
class CHelpRequests;
class CListView;
class CLogView;
class CViewWidget;

/// A view made of widgets.
///
/// Its widget is a child of the parent given, of the template's size, hidden at first; its name is
/// "view-" and the template's id, those of the controls "control-" and theirs. Should the parent
/// end first, all verbs do nothing from then on. The view may be destroyed inside any of its own
/// notifications.
class CQtView final : public panel::IView {
public:
    /// Does not call OnInit. `endDialog` is what EndDialog does; empty for no dialog's view.
    CQtView(const panel::DialogTemplate& dialogTemplate, QWidget& parent,
            panel::IDialogHandler& handler, std::function<void(int)> endDialog = {});
    ~CQtView() override;
    CQtView(const CQtView&) = delete;
    CQtView& operator=(const CQtView&) = delete;

    /// Null once the parent has ended.
    QWidget* GetWidget() const;
    /// Brings the handler the help requests of all of the widget's window, for a view that only
    /// adds to a window. Before the parent ends.
    void AnswerHelpForWindow();
    /// Tells the handler of a button press.
    void SendCommand(panel::ControlId id);

    panel::ControlId Capture(panel::ControlId id) override;
    void SetText(panel::ControlId id, std::string_view text) override;
    std::string GetText(panel::ControlId id) const override;
    void SetEnabled(panel::ControlId id, bool enabled) override;
    bool IsEnabled(panel::ControlId id) const override;
    void SetVisible(panel::ControlId id, bool visible) override;
    bool IsVisible(panel::ControlId id) const override;
    void SetFocus(panel::ControlId id) override;
    panel::ControlId GetFocus() const override;

    panel::Size GetClientSize() const override;
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

private:
    struct Control {
        QWidget* widget;
        panel::ControlKind kind;
        QString text;
        // The widget as what it is; null for another kind.
        CListView* list;
        CLogView* log;
    };

    const Control* Find(panel::ControlId id) const;
    Control* Find(panel::ControlId id);
    /// The widget of a control of that kind, else null.
    template <class Widget>
    Widget* Find(panel::ControlId id, panel::ControlKind kind) const {
        const Control* const control = Find(id);
        return control && control->kind == kind ? static_cast<Widget*>(control->widget) : nullptr;
    }
    CListView* FindList(panel::ControlId id) const;
    CLogView* FindLog(panel::ControlId id) const;
    void Build(const panel::DialogTemplate& dialogTemplate);
    void ReportSize();

    QPointer<CViewWidget> m_widget;
    std::shared_ptr<CHandlerLink> m_link;
    std::function<void(int)> m_endDialog;
    std::unordered_map<panel::ControlId, Control> m_controls;
    CFocusMemory* m_focus = nullptr; // a child of the widget
    CHelpRequests* m_help = nullptr; // another
    panel::Size m_reportedSize;
};

}
