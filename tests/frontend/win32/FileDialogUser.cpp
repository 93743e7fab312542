#include "tests/frontend/win32/FileDialogUser.h"

#include "frontend/win32/Text.h"
#include "tests/frontend/win32/Input.h"

#include <dlgs.h>

namespace win32tests {

namespace {

// A field of its own, or the one of a list of names typed before.
HWND NameFieldOf(HWND dialog) {
    const HWND list = GetDlgItem(dialog, cmb13);
    return list ? ChildrenOf(list, L"Edit").front() : GetDlgItem(dialog, edt1);
}

}

CFileDialogUser::CFileDialogUser(HWND dialog) : m_dialog(dialog) {
    for (const HWND child : ChildrenOf(dialog, L"#32770")) {
        m_options.emplace(child);
    }
}

void CFileDialogUser::TypeName(const std::string& name) {
    SendMessageW(NameFieldOf(m_dialog), WM_SETTEXT, 0,
                 reinterpret_cast<LPARAM>(win32::ToWide(name).c_str()));
}

bool CFileDialogUser::Accept(const std::string& path) {
    TypeName(path);
    ClickCentre(GetDlgItem(m_dialog, IDOK));
    Pump();
    return !IsOpen();
}

void CFileDialogUser::Cancel() {
    if (IsOpen()) {
        ClickCentre(GetDlgItem(m_dialog, IDCANCEL));
        Pump();
    }
}

std::string CFileDialogUser::ShownTitle() { return win32::FromWide(TextOf(m_dialog)); }

std::string CFileDialogUser::ShownName() { return win32::FromWide(TextOf(NameFieldOf(m_dialog))); }

std::vector<std::string> CFileDialogUser::ShownFilters() {
    return CWin32ViewUser(m_dialog).ShownChoices(cmb1);
}

bool CFileDialogUser::IsOpen() const { return IsWindow(m_dialog) && IsWindowVisible(m_dialog); }

}
