// The verbs of a CHeadlessView for check boxes, address fields, drop-down lists and icons.

#include "frontend/headless/HeadlessView.h"
#include "frontend/headless/Utf8.h"

namespace headless {

using panel::ControlId;
using enum panel::ControlKind;

const HeadlessControl* CHeadlessView::Find(ControlId id, panel::ControlKind kind) const {
    const HeadlessControl* control = Find(id);
    return control && control->kind == kind ? control : nullptr;
}

HeadlessControl* CHeadlessView::Find(ControlId id, panel::ControlKind kind) {
    HeadlessControl* control = Find(id);
    return control && control->kind == kind ? control : nullptr;
}

void CHeadlessView::SetChecked(ControlId box, bool checked) {
    if (HeadlessControl* control = Find(box, CheckBox)) {
        control->isChecked = checked;
    }
}

bool CHeadlessView::IsChecked(ControlId box) const {
    const HeadlessControl* control = Find(box, CheckBox);
    return control && control->isChecked;
}

void CHeadlessView::SetAddress(ControlId field, std::uint32_t address) {
    if (HeadlessControl* control = Find(field, AddressField)) {
        control->address = address;
    }
}

std::uint32_t CHeadlessView::GetAddress(ControlId field) const {
    const HeadlessControl* control = Find(field, AddressField);
    return control ? control->address : 0;
}

int CHeadlessView::AddChoice(ControlId list, std::string_view text, std::int32_t data) {
    HeadlessControl* control = Find(list, DropDownList);
    if (!control) {
        return panel::kNoChoice;
    }
    control->choices.push_back({ToShownText(text), data});
    return static_cast<int>(control->choices.size()) - 1;
}

void CHeadlessView::SelectChoice(ControlId list, int index) {
    if (HeadlessControl* control = Find(list, DropDownList)) {
        control->selectedChoice = control->HasChoice(index) ? index : panel::kNoChoice;
    }
}

int CHeadlessView::GetSelectedChoice(ControlId list) const {
    const HeadlessControl* control = Find(list, DropDownList);
    return control ? control->selectedChoice : panel::kNoChoice;
}

std::optional<std::int32_t> CHeadlessView::GetChoiceData(ControlId list, int index) const {
    const HeadlessControl* control = Find(list, DropDownList);
    if (!control || !control->HasChoice(index) || m_listsWithoutData.contains(list)) {
        return std::nullopt;
    }
    return control->choices[static_cast<std::size_t>(index)].data;
}

int CHeadlessView::SetIcon(ControlId id, panel::StandardIcon icon) {
    HeadlessControl* control = Find(id, panel::ControlKind::Icon);
    if (!control) {
        return 0;
    }
    control->icon = m_iconError == 0 ? std::optional(icon) : std::nullopt;
    return m_iconError;
}

}
