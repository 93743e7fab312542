#pragma once

#include "frontend/win32/Win32View.h"
#include "panel/control/FileDialog.h"

#include <string>

namespace win32 {

/// A file dialog of the system, with the panel's own controls below the list of files.
class CFileDialog {
public:
    enum class Kind { Open, Save };

    CFileDialog(const panel::FileDialog& dialog, Kind kind, std::shared_ptr<CCursorStack> cursors);

    /// Shows it in front of `owner`, which may be null. The process's current folder, which the
    /// system's dialog moves about, is as before afterwards.
    panel::FileOutcome Run(HWND owner);

private:
    static UINT_PTR CALLBACK Hook(HWND options, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK AnswerHelp(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam,
                                       UINT_PTR identifier, DWORD_PTR reference);
    OPENFILENAMEW Request(HWND owner);
    void MakeOptions(HWND options);
    bool OnNotification(HWND options, const NMHDR& notification);
    bool IsAccepted() const;
    panel::FileOutcome Outcome() const;

    const panel::FileDialog& m_dialog;
    const Kind m_kind;
    const std::shared_ptr<CCursorStack> m_cursors;
    std::wstring m_path;
    std::wstring m_filters;
    std::wstring m_title;
    std::wstring m_folder;
    std::wstring m_extension;
    std::unique_ptr<CWin32View> m_options;
};

}
