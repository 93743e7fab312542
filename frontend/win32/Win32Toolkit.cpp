#include "frontend/win32/Win32Toolkit.h"

#include "frontend/win32/ActivationContext.h"
#include "frontend/win32/Dialog.h"
#include "frontend/win32/DialogResource.h"
#include "frontend/win32/FileDialog.h"
#include "frontend/win32/Font.h"
#include "frontend/win32/HelpWindow.h"
#include "frontend/win32/MessageBox.h"
#include "frontend/win32/Module.h"
#include "frontend/win32/PopupMenu.h"
#include "frontend/win32/Text.h"
#include "frontend/win32/Win32View.h"
#include "panel/control/DialogHandler.h"

#include <utility>

namespace win32 {

namespace {

constexpr int kLongestDateOrTime = 128;

/// What one of the system's formatting functions makes of now.
template <class Format>
std::string Formatted(Format format) {
    wchar_t text[kLongestDateOrTime] = {};
    return format(text, kLongestDateOrTime) > 0 ? FromWide(text) : std::string();
}

INT_PTR CALLBACK LeaveAllToSystem(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

HWND MakeChild(const panel::DialogTemplate& dialogTemplate, HWND parent) {
    const CActivationContext context;
    RegisterControlClasses();
    const CDialogResource resource(dialogTemplate, WindowKind::Child);
    return CreateDialogIndirectParamW(OwnModule(), static_cast<LPCDLGTEMPLATEW>(resource.Data()),
                                      parent, LeaveAllToSystem, 0);
}

}

CWin32Toolkit::CWin32Toolkit(FocusRule mayTakeFocus) : m_mayTakeFocus(std::move(mayTakeFocus)) {}

CWin32Toolkit::~CWin32Toolkit() {
    while (m_waitCursors > 0) {
        CWin32Toolkit::PopCursor();
    }
}

std::unique_ptr<panel::IView> CWin32Toolkit::CreateView(const panel::DialogTemplate& dialogTemplate,
                                                        void* nativeParent,
                                                        panel::IDialogHandler& handler) {
    const HWND window =
        nativeParent ? MakeChild(dialogTemplate, static_cast<HWND>(nativeParent)) : nullptr;
    if (!window) {
        return nullptr;
    }
    auto view =
        std::make_unique<CWin32View>(dialogTemplate, window, handler, m_cursors, m_mayTakeFocus);
    m_panelWindow = window;
    handler.OnInit(*view);
    view->Show();
    return view;
}

panel::DialogOutcome CWin32Toolkit::RunDialog(const panel::DialogTemplate& dialogTemplate,
                                              panel::IDialogHandler& handler, panel::Owner owner) {
    return CDialog(dialogTemplate, handler, m_cursors).Run(FindOwner(owner));
}

std::int32_t CWin32Toolkit::ShowBox(const std::string& text, const std::string& caption,
                                    std::uint32_t style) {
    const CArrowCursor arrow(m_cursors);
    return ShowMessageBox(text, caption, style);
}

std::unique_ptr<panel::IPopupMenu> CWin32Toolkit::CreatePopupMenu(int& error) {
    return CPopupMenu::Create(m_panelWindow, m_cursors, error);
}

panel::FileOutcome CWin32Toolkit::OpenFile(const panel::FileDialog& dialog) {
    return CFileDialog(dialog, CFileDialog::Kind::Open, m_cursors).Run(FindOwner(dialog.owner));
}

panel::FileOutcome CWin32Toolkit::SaveFile(const panel::FileDialog& dialog) {
    return CFileDialog(dialog, CFileDialog::Kind::Save, m_cursors).Run(FindOwner(dialog.owner));
}

panel::LocalTime CWin32Toolkit::GetLocalTime() const {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return {Formatted([&](wchar_t* text, int room) {
                return GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &now, nullptr, text, room,
                                       nullptr);
            }),
            Formatted([&](wchar_t* text, int room) {
                return GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &now, nullptr, text, room);
            })};
}

void CWin32Toolkit::PushWaitCursor() {
    m_cursors->PushWait();
    ++m_waitCursors;
}

void CWin32Toolkit::PopCursor() {
    if (m_waitCursors > 0) {
        m_cursors->Pop();
        --m_waitCursors;
    }
}

void CWin32Toolkit::ShowHelp(const std::string& file, std::uint32_t context, panel::Owner owner) {
    if (!m_help) {
        m_help = std::make_unique<CHelpWindow>();
    }
    m_help->ShowTopic(file, context, FindOwner(owner));
}

std::string CWin32Toolkit::GetComponentFolder() const {
    const std::wstring file = OwnModuleFile();
    return FromWide(file.substr(0, file.find_last_of(L'\\')));
}

panel::FontMetrics CWin32Toolkit::MeasureFont() const { return win32::MeasureFont(); }

void CWin32Toolkit::Trace(const std::string& line) { OutputDebugStringW(ToWide(line).c_str()); }

HWND CWin32Toolkit::FindOwner(panel::Owner owner) const {
    switch (owner) {
    case panel::Owner::Panel:
    case panel::Owner::PanelParent:
        // A host may keep a panel where nobody sees it.
        if (const HWND root = GetAncestor(m_panelWindow, GA_ROOT); IsWindowVisible(root)) {
            return root;
        }
        return GetActiveWindow();
    case panel::Owner::ActiveWindow:
        return GetActiveWindow();
    case panel::Owner::None:
        break;
    }
    return nullptr;
}

}
