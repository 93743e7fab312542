#pragma once

#include "panel/control/View.h"

namespace panel {

/// The view that is not there: verbs do nothing, questions answer empty. Holds no state.
class CNullView final : public IView {
public:
    ControlId Capture(ControlId) override { return kNoControl; }
    void SetText(ControlId, std::string_view) override {}
    std::string GetText(ControlId) const override { return {}; }
    void SetEnabled(ControlId, bool) override {}
    bool IsEnabled(ControlId) const override { return false; }
    void SetVisible(ControlId, bool) override {}
    bool IsVisible(ControlId) const override { return false; }
    void SetFocus(ControlId) override {}
    ControlId GetFocus() const override { return kNoControl; }
    Size GetClientSize() const override { return {}; }
    void SetSize(Size) override {}
    Rectangle GetRectangle(ControlId) const override { return {}; }
    void Move(ControlId, const Rectangle&) override {}
    void InsertColumn(ControlId, int, const ListColumn&) override {}
    int InsertRow(ControlId, int, std::string_view) override { return kNoRow; }
    void SetCell(ControlId, int, int, std::string_view) override {}
    std::string GetCell(ControlId, int, int) const override { return {}; }
    void SetRowKey(ControlId, int, std::uint32_t) override {}
    std::uint32_t GetRowKey(ControlId, int) const override { return 0; }
    void RemoveAllRows(ControlId) override {}
    int GetRowCount(ControlId) const override { return 0; }
    void SelectRow(ControlId, int, bool) override {}
    std::vector<int> GetSelectedRows(ControlId) const override { return {}; }
    void SetSelectionMark(ControlId, int) override {}
    int GetSelectionMark(ControlId) const override { return kNoRow; }
    int GetFocusedRow(ControlId) const override { return kNoRow; }
    void EnsureRowVisible(ControlId, int) override {}
    void SetTextLimit(ControlId, std::size_t) override {}
    void AppendLog(ControlId, std::string_view) override {}
    void ClearLog(ControlId) override {}
    Point ToScreen(ControlId, Point) const override { return {}; }
    std::optional<Point> GetRowPosition(ControlId, int) const override { return std::nullopt; }
    Size GetListClientSize(ControlId) const override { return {}; }
    void SetChecked(ControlId, bool) override {}
    bool IsChecked(ControlId) const override { return false; }
    void SetAddress(ControlId, std::uint32_t) override {}
    std::uint32_t GetAddress(ControlId) const override { return 0; }
    int AddChoice(ControlId, std::string_view, std::int32_t) override { return kNoChoice; }
    void SelectChoice(ControlId, int) override {}
    int GetSelectedChoice(ControlId) const override { return kNoChoice; }
    std::optional<std::int32_t> GetChoiceData(ControlId, int) const override {
        return std::nullopt;
    }
    int SetIcon(ControlId, StandardIcon) override { return 0; }
    void SetProgressRange(ControlId, int) override {}
    void SetProgressPosition(ControlId, int) override {}
    void EndDialog(int) override {}
};

}
