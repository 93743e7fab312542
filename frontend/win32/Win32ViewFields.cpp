// The verbs of CWin32View for check boxes, address fields, drop-down lists, icons and progress
// bars.

#include "frontend/win32/Text.h"
#include "frontend/win32/ViewWindow.h"
#include "frontend/win32/Win32View.h"

#include <algorithm>

namespace win32 {

using panel::ControlId;
using panel::ControlKind;

namespace {

LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return window ? SendMessageW(window, message, wParam, lParam) : 0;
}

bool HasChoice(HWND list, int index) { return index >= 0 && index < Send(list, CB_GETCOUNT); }

int MaximumOf(HWND bar) { return static_cast<int>(Send(bar, PBM_GETRANGE, FALSE)); }

LPCWSTR NameOf(panel::StandardIcon icon) {
    return icon == panel::StandardIcon::Warning ? IDI_WARNING : IDI_INFORMATION;
}

}

void CWin32View::SetChecked(ControlId box, bool checked) {
    Send(Find(box, ControlKind::CheckBox), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
}

bool CWin32View::IsChecked(ControlId box) const {
    return Send(Find(box, ControlKind::CheckBox), BM_GETCHECK) == BST_CHECKED;
}

void CWin32View::SetAddress(ControlId field, std::uint32_t address) {
    Send(Find(field, ControlKind::AddressField), IPM_SETADDRESS, 0, static_cast<LPARAM>(address));
}

std::uint32_t CWin32View::GetAddress(ControlId field) const {
    DWORD address = 0;
    Send(Find(field, ControlKind::AddressField), IPM_GETADDRESS, 0,
         reinterpret_cast<LPARAM>(&address));
    return address;
}

int CWin32View::AddChoice(ControlId list, std::string_view text, std::int32_t data) {
    const HWND found = Find(list, ControlKind::DropDownList);
    if (!found) {
        return panel::kNoChoice;
    }
    const LRESULT index =
        Send(found, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
    if (index < 0) {
        return panel::kNoChoice;
    }
    Send(found, CB_SETITEMDATA, static_cast<WPARAM>(index), data);
    return static_cast<int>(index);
}

void CWin32View::SelectChoice(ControlId list, int index) {
    const HWND found = Find(list, ControlKind::DropDownList);
    const int chosen = HasChoice(found, index) ? index : panel::kNoChoice;
    Send(found, CB_SETCURSEL, static_cast<WPARAM>(chosen));
}

int CWin32View::GetSelectedChoice(ControlId list) const {
    const HWND found = Find(list, ControlKind::DropDownList);
    return found ? static_cast<int>(Send(found, CB_GETCURSEL)) : panel::kNoChoice;
}

// The system's word for a failure, -1, can be the data as well; the choice is there, so it is.
std::optional<std::int32_t> CWin32View::GetChoiceData(ControlId list, int index) const {
    const HWND found = Find(list, ControlKind::DropDownList);
    if (!HasChoice(found, index)) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(Send(found, CB_GETITEMDATA, static_cast<WPARAM>(index)));
}

int CWin32View::SetIcon(ControlId id, panel::StandardIcon icon) {
    const HWND found = Find(id, ControlKind::Icon);
    if (!found) {
        return 0;
    }
    const HICON loaded = LoadIconW(nullptr, NameOf(icon));
    const auto error = static_cast<int>(loaded ? ERROR_SUCCESS : GetLastError());
    Send(found, STM_SETICON, reinterpret_cast<WPARAM>(loaded));
    return error;
}

// The system takes what it is given: a range of less than nothing, a position beyond it.
void CWin32View::SetProgressRange(ControlId bar, int maximum) {
    Send(Find(bar, ControlKind::ProgressBar), PBM_SETRANGE32, 0, std::max(1, maximum));
}

void CWin32View::SetProgressPosition(ControlId bar, int position) {
    const HWND found = Find(bar, ControlKind::ProgressBar);
    Send(found, PBM_SETPOS,
         static_cast<WPARAM>(std::clamp(position, 0, std::max(0, MaximumOf(found)))));
}

}
