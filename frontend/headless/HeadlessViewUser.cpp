// What a user does to a CHeadlessView, and sees of it.

#include "frontend/headless/HeadlessView.h"
#include "frontend/headless/Utf8.h"
#include "panel/control/Utf8.h"

#include <algorithm>

namespace headless {

using panel::ControlId;

namespace {

// Where views lie on the screen; not at its origin, so that nobody mixes up the coordinates.
constexpr panel::Point kScreenOrigin{200, 100};

constexpr panel::Rectangle OnScreen(const panel::Rectangle& rectangle) {
    return {rectangle.x + kScreenOrigin.x, rectangle.y + kScreenOrigin.y, rectangle.width,
            rectangle.height};
}

constexpr panel::Point CentreOf(const panel::Rectangle& rectangle) {
    return {rectangle.x + rectangle.width / 2, rectangle.y + rectangle.height / 2};
}

}

// The handler is called last: the view may be gone when it returns.
bool CHeadlessView::Press(ControlId button) {
    const HeadlessControl* control = FindUsable(button);
    if (!control || !control->IsButton()) {
        return false;
    }
    SetFocus(button);
    m_handler.OnCommand(button);
    return true;
}

bool CHeadlessView::PressMnemonic(char letter) {
    for (const HeadlessControl& control : m_controls) {
        if (control.mnemonic == letter && control.IsUsable() &&
            (control.IsButton() || control.IsCheckBox())) {
            return control.IsButton() ? Press(control.id) : Toggle(control.id);
        }
    }
    return false;
}

bool CHeadlessView::PressKeyInList(ControlId list, std::uint16_t virtualKey) {
    CHeadlessList* target = EnterList(list);
    if (!target) {
        return false;
    }
    const std::weak_ptr<bool> alive = m_alive;
    m_handler.OnListKeyDown(list, virtualKey);
    if (!alive.expired()) {
        target->PressKey(virtualKey);
    }
    return true;
}

bool CHeadlessView::ClickRow(ControlId list, int row, Modifier modifier) {
    CHeadlessList* target = EnterList(list);
    if (!target || !target->HasRow(row)) {
        return false;
    }
    target->Click(row, modifier);
    return true;
}

bool CHeadlessView::RightClick(ControlId list, int row) {
    CHeadlessList* target = EnterList(list);
    if (!target || (row != panel::kNoRow && !target->HasRow(row))) {
        return false;
    }
    target->RightClick(row);
    const HeadlessControl& control = *Find(list);
    const int clickedRow = row == panel::kNoRow ? target->GetRowCount() : row;
    m_handler.OnListRightClick(list, CentreOf(OnScreen(control.RowRectangle(clickedRow))));
    return true;
}

// The handler is called last, as above.
bool CHeadlessView::Toggle(ControlId box) {
    HeadlessControl* control = Enter(box, panel::ControlKind::CheckBox);
    if (!control) {
        return false;
    }
    control->isChecked = !control->isChecked;
    m_handler.OnCommand(box);
    return true;
}

bool CHeadlessView::TypeText(ControlId field, std::string_view text) {
    HeadlessControl* control = Enter(field, panel::ControlKind::EditField);
    if (!control) {
        return false;
    }
    control->text = panel::CutToUtf16Units(text, control->textLimit);
    return true;
}

bool CHeadlessView::TypeAddress(ControlId field, std::uint32_t address) {
    HeadlessControl* control = Enter(field, panel::ControlKind::AddressField);
    if (!control) {
        return false;
    }
    control->address = address;
    return true;
}

bool CHeadlessView::Choose(ControlId list, std::string_view text) {
    HeadlessControl* control = Enter(list, panel::ControlKind::DropDownList);
    if (!control) {
        return false;
    }
    const auto choice = std::ranges::find(control->choices, text, &HeadlessChoice::text);
    if (choice == control->choices.end()) {
        return false;
    }
    control->selectedChoice = static_cast<int>(choice - control->choices.begin());
    return true;
}

void CHeadlessView::RequestHelp() {
    if (!TakesInput()) {
        return;
    }
    const HeadlessControl* focused = Find(m_focus);
    m_handler.OnHelp(focused ? focused->helpContext : 0);
}

void CHeadlessView::PressTab() {
    if (!TakesInput()) {
        return;
    }
    const auto focused = std::ranges::find(m_controls, m_focus, &HeadlessControl::id);
    const auto start = focused == m_controls.end() ? m_controls.begin() : focused + 1;
    const auto isStop = [](const HeadlessControl& control) {
        return control.CanHaveFocus() && control.IsUsable();
    };
    auto next = std::find_if(start, m_controls.end(), isStop);
    if (next == m_controls.end()) {
        next = std::ranges::find_if(m_controls, isStop);
    }
    if (next != m_controls.end()) {
        SetFocus(next->id);
    }
}

void CHeadlessView::PressReturn() {
    if (m_kind != ViewKind::Dialog || !TakesInput()) {
        return;
    }
    const auto button =
        std::ranges::find(m_controls, panel::ControlKind::DefaultButton, &HeadlessControl::kind);
    if (button != m_controls.end() && button->IsUsable()) {
        m_handler.OnCommand(button->id);
    }
}

void CHeadlessView::PressEscape() {
    if (m_kind == ViewKind::Dialog && TakesInput()) {
        m_handler.OnCommand(panel::kCancelButton);
    }
}

int CHeadlessView::FrameComputations(ControlId id) const {
    const HeadlessControl* control = Find(id);
    return control ? control->frameComputations : 0;
}

std::size_t CHeadlessView::TextLimit(ControlId id) const {
    const HeadlessControl* control = Find(id);
    return control ? control->textLimit : 0;
}

HeadlessProgress CHeadlessView::Progress(ControlId bar) const {
    const HeadlessControl* control = Find(bar);
    return control ? HeadlessProgress{control->progressMaximum, control->progressPosition}
                   : HeadlessProgress{};
}

// Moving a control keeps its place, so the order is for ever that of the template.
std::vector<ControlId> CHeadlessView::StackingOrder() const {
    std::vector<ControlId> order;
    for (const HeadlessControl& control : m_controls) {
        order.push_back(control.id);
    }
    return order;
}

std::vector<HeadlessColumn> CHeadlessView::Columns(ControlId list) const {
    const CHeadlessList* target = FindList(list);
    return target ? target->Columns() : std::vector<HeadlessColumn>();
}

bool CHeadlessView::IsRowInSight(ControlId list, int row) const {
    const CHeadlessList* target = FindList(list);
    return target && target->IsRowInSight(row);
}

panel::Rectangle CHeadlessView::ScreenRectangle(ControlId id) const {
    const HeadlessControl* control = Find(id);
    return control ? OnScreen(control->rectangle) : panel::Rectangle{};
}

panel::Point CHeadlessView::ToScreen(ControlId id, panel::Point inControl) const {
    const panel::Rectangle place = ScreenRectangle(id);
    return {place.x + inControl.x, place.y + inControl.y};
}

std::vector<std::string> CHeadlessView::Choices(ControlId list) const {
    std::vector<std::string> texts;
    if (const HeadlessControl* control = Find(list, panel::ControlKind::DropDownList)) {
        for (const HeadlessChoice& choice : control->choices) {
            texts.push_back(choice.text);
        }
    }
    return texts;
}

std::optional<panel::StandardIcon> CHeadlessView::Icon(ControlId id) const {
    const HeadlessControl* control = Find(id);
    return control ? control->icon : std::nullopt;
}

std::vector<std::string> CHeadlessView::LogLines(ControlId log) const {
    const HeadlessControl* control = Find(log);
    std::vector<std::string> lines;
    std::string_view rest = control && control->IsLog() ? control->text : std::string_view();
    while (!rest.empty()) {
        const std::size_t end = rest.find("\r\n");
        lines.push_back(ToShownText(rest.substr(0, end)));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 2);
    }
    return lines;
}

HeadlessControl* CHeadlessView::FindUsable(ControlId id) {
    HeadlessControl* control = Find(id);
    return TakesInput() && control && control->IsUsable() ? control : nullptr;
}

HeadlessControl* CHeadlessView::Enter(ControlId id, panel::ControlKind kind) {
    HeadlessControl* control = FindUsable(id);
    if (!control || control->kind != kind) {
        return nullptr;
    }
    SetFocus(id);
    return control;
}

CHeadlessList* CHeadlessView::EnterList(ControlId id) {
    HeadlessControl* control = FindUsable(id);
    if (!control || !control->list) {
        return nullptr;
    }
    SetFocus(id);
    return control->list.get();
}

bool CHeadlessView::TakesInput() const { return m_windows->IsActive(*this) && !m_result; }

}
