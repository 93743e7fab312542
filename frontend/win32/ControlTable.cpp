#include "frontend/win32/ControlTable.h"

#include "frontend/win32/Text.h"

#include <utility>

namespace win32 {

using panel::ControlId;
using panel::ControlKind;

CControlTable::CControlTable(const panel::DialogTemplate& dialogTemplate, HWND dialog)
    : m_dialog(dialog) {
    for (const panel::ControlTemplate& control : dialogTemplate.controls) {
        m_controls.emplace(
            control.id, Control{GetDlgItem(dialog, control.id), control.kind, control.helpContext,
                                FromWide(WithoutMnemonicMark(ToWide(control.text)))});
    }
}

const CControlTable::Control* CControlTable::Find(ControlId id) const {
    const auto found = m_controls.find(id);
    return found == m_controls.end() ? nullptr : &found->second;
}

CControlTable::Control* CControlTable::Find(ControlId id) {
    return const_cast<Control*>(std::as_const(*this).Find(id));
}

HWND CControlTable::FindWindowOf(ControlId id, ControlKind kind) const {
    const Control* const control = Find(id);
    return control && control->kind == kind ? control->window : nullptr;
}

ControlId CControlTable::FindId(HWND window) const {
    while (window && GetParent(window) != m_dialog) {
        window = GetAncestor(window, GA_PARENT);
    }
    const auto id = static_cast<ControlId>(window ? GetDlgCtrlID(window) : 0);
    const Control* const control = Find(id);
    return control && control->window == window ? id : panel::kNoControl;
}

bool IsField(ControlKind kind) {
    return kind == ControlKind::TextField || kind == ControlKind::NumberField ||
           kind == ControlKind::EditField;
}

bool IsList(ControlKind kind) {
    return kind == ControlKind::MultiSelectList || kind == ControlKind::SingleSelectList;
}

bool SendsCommands(ControlKind kind) {
    return kind == ControlKind::Button || kind == ControlKind::DefaultButton ||
           kind == ControlKind::CheckBox;
}

}
