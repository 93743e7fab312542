#include "frontend/headless/HeadlessView.h"

#include "frontend/headless/Utf8.h"

#include <algorithm>
#include <utility>

namespace headless {

using panel::ControlId;
using panel::kNoControl;

CHeadlessView::CHeadlessView(const panel::DialogTemplate& dialogTemplate, panel::FontMetrics font,
                             panel::IDialogHandler& handler, std::shared_ptr<CWindowStack> windows,
                             ViewKind kind)
    : m_template(dialogTemplate),
      m_handler(handler),
      m_windows(std::move(windows)),
      m_kind(kind),
      m_clientSize(panel::ToPixels(dialogTemplate.size, font)) {
    m_controls.reserve(dialogTemplate.controls.size());
    for (const panel::ControlTemplate& control : dialogTemplate.controls) {
        m_controls.emplace_back(control, panel::ToPixels(control.rectangle, font));
        Register(m_controls.back());
    }
    kind == ViewKind::Panel ? m_windows->OpenPanel(*this) : m_windows->OpenDialog(*this);
}

void CHeadlessView::Register(HeadlessControl& control) {
    if (control.id == kNoControl) {
        return;
    }
    const std::size_t slots = std::max(m_controlsById.size(), control.id + std::size_t{1});
    m_controlsById.resize(slots);
    m_lists.resize(slots);
    m_controlsById[control.id] = &control;
    m_lists[control.id] = control.list.get();
}

CHeadlessView::~CHeadlessView() { m_windows->Close(*this); }

ControlId CHeadlessView::Capture(ControlId id) {
    if (!Find(id)) {
        return kNoControl;
    }
    m_captures.push_back(id);
    return id;
}

void CHeadlessView::SetText(ControlId id, std::string_view text) {
    HeadlessControl* control = Find(id);
    if (!control || !control->HasText()) {
        return;
    }
    control->text = text;
    control->mnemonic = 0;
}

std::string CHeadlessView::GetText(ControlId id) const {
    const HeadlessControl* control = Find(id);
    return control ? ToShownText(control->text) : std::string();
}

void CHeadlessView::SetEnabled(ControlId id, bool enabled) {
    HeadlessControl* control = Find(id);
    if (!control) {
        return;
    }
    control->isEnabled = enabled;
    enabled ? DeliverPendingFocus(*control) : WithdrawFocus(*control);
}

bool CHeadlessView::IsEnabled(ControlId id) const {
    const HeadlessControl* control = Find(id);
    return control && control->isEnabled;
}

void CHeadlessView::SetVisible(ControlId id, bool visible) {
    HeadlessControl* control = Find(id);
    if (!control) {
        return;
    }
    control->isVisible = visible;
    visible ? DeliverPendingFocus(*control) : WithdrawFocus(*control);
}

bool CHeadlessView::IsVisible(ControlId id) const {
    const HeadlessControl* control = Find(id);
    return control && control->isVisible;
}

void CHeadlessView::SetFocus(ControlId id) {
    const HeadlessControl* control = Find(id);
    if (!control || !control->CanHaveFocus()) {
        return;
    }
    m_pendingFocus = id;
    DeliverPendingFocus(*control);
}

ControlId CHeadlessView::GetFocus() const {
    return m_pendingFocus != kNoControl ? m_pendingFocus : m_focus;
}

void CHeadlessView::SetSize(panel::Size size) {
    if (std::exchange(m_clientSize, size) != size) {
        m_handler.OnResized(size);
    }
}

panel::Rectangle CHeadlessView::GetRectangle(ControlId id) const {
    const HeadlessControl* control = Find(id);
    return control ? control->rectangle : panel::Rectangle{};
}

void CHeadlessView::Move(ControlId id, const panel::Rectangle& rectangle) {
    if (HeadlessControl* control = Find(id)) {
        control->Move(rectangle);
    }
}

void CHeadlessView::InsertColumn(ControlId list, int index, const panel::ListColumn& column) {
    if (CHeadlessList* rows = FindList(list)) {
        rows->InsertColumn(index, column);
    }
}

int CHeadlessView::InsertRow(ControlId list, int index, std::string_view text) {
    CHeadlessList* rows = FindList(list);
    return rows ? rows->InsertRow(index, text) : panel::kNoRow;
}

void CHeadlessView::SetCell(ControlId list, int row, int column, std::string_view text) {
    if (CHeadlessList* rows = FindList(list)) {
        rows->SetCell(row, column, text);
    }
}

std::string CHeadlessView::GetCell(ControlId list, int row, int column) const {
    const CHeadlessList* rows = FindList(list);
    return rows ? rows->GetCell(row, column) : std::string();
}

void CHeadlessView::SetRowKey(ControlId list, int row, std::uint32_t key) {
    if (CHeadlessList* rows = FindList(list)) {
        rows->SetRowKey(row, key);
    }
}

std::uint32_t CHeadlessView::GetRowKey(ControlId list, int row) const {
    const CHeadlessList* rows = FindList(list);
    return rows ? rows->GetRowKey(row) : 0;
}

void CHeadlessView::RemoveAllRows(ControlId list) {
    if (CHeadlessList* rows = FindList(list)) {
        rows->RemoveAllRows();
    }
}

int CHeadlessView::GetRowCount(ControlId list) const {
    const CHeadlessList* rows = FindList(list);
    return rows ? rows->GetRowCount() : 0;
}

void CHeadlessView::SelectRow(ControlId list, int row, bool selected) {
    if (CHeadlessList* rows = FindList(list)) {
        rows->SelectRow(row, selected);
    }
}

std::vector<int> CHeadlessView::GetSelectedRows(ControlId list) const {
    const CHeadlessList* rows = FindList(list);
    return rows ? rows->GetSelectedRows() : std::vector<int>();
}

void CHeadlessView::SetSelectionMark(ControlId list, int row) {
    if (CHeadlessList* rows = FindList(list)) {
        rows->SetSelectionMark(row);
    }
}

int CHeadlessView::GetSelectionMark(ControlId list) const {
    const CHeadlessList* rows = FindList(list);
    return rows ? rows->GetSelectionMark() : panel::kNoRow;
}

int CHeadlessView::GetFocusedRow(ControlId list) const {
    const CHeadlessList* rows = FindList(list);
    return rows ? rows->GetFocusedRow() : panel::kNoRow;
}

void CHeadlessView::EnsureRowVisible(ControlId list, int row) {
    if (CHeadlessList* rows = FindList(list)) {
        rows->EnsureRowVisible(row);
    }
}

std::optional<panel::Point> CHeadlessView::GetRowPosition(ControlId list, int row) const {
    const CHeadlessList* rows = FindList(list);
    if (!rows || !rows->HasRow(row)) {
        return std::nullopt;
    }
    return Find(list)->RowPosition(row);
}

panel::Size CHeadlessView::GetListClientSize(ControlId list) const {
    const panel::Rectangle place = FindList(list) ? Find(list)->rectangle : panel::Rectangle{};
    return {place.width, place.height};
}

void CHeadlessView::SetTextLimit(ControlId id, std::size_t characters) {
    if (HeadlessControl* control = Find(id)) {
        control->textLimit = characters;
    }
}

void CHeadlessView::AppendLog(ControlId log, std::string_view text) {
    HeadlessControl* control = Find(log);
    if (control && control->IsLog()) {
        control->text += text;
    }
}

void CHeadlessView::ClearLog(ControlId log) {
    HeadlessControl* control = Find(log);
    if (control && control->IsLog()) {
        control->text.clear();
    }
}

void CHeadlessView::SetProgressRange(ControlId bar, int maximum) {
    if (HeadlessControl* control = Find(bar)) {
        control->progressMaximum = std::max(maximum, 0);
        control->progressPosition = std::min(control->progressPosition, control->progressMaximum);
    }
}

void CHeadlessView::SetProgressPosition(ControlId bar, int position) {
    if (HeadlessControl* control = Find(bar)) {
        control->progressPosition = std::clamp(position, 0, control->progressMaximum);
    }
}

void CHeadlessView::EndDialog(int result) {
    if (m_kind == ViewKind::Dialog) {
        m_result = result;
    }
}

const HeadlessControl* CHeadlessView::Find(ControlId id) const {
    return id < m_controlsById.size() ? m_controlsById[id] : nullptr;
}

HeadlessControl* CHeadlessView::Find(ControlId id) {
    return id < m_controlsById.size() ? m_controlsById[id] : nullptr;
}

void CHeadlessView::DeliverPendingFocus(const HeadlessControl& control) {
    if (control.id != m_pendingFocus || !control.IsUsable()) {
        return;
    }
    m_focus = control.id;
    m_pendingFocus = kNoControl;
}

// A control that is merely switched off for a while gets the focus back afterwards.
void CHeadlessView::WithdrawFocus(const HeadlessControl& control) {
    if (control.id != m_focus) {
        return;
    }
    m_focus = kNoControl;
    if (m_pendingFocus == kNoControl) {
        m_pendingFocus = control.id;
    }
}

}
