#pragma once

#include "tests/frontend/win32/Win32ViewUser.h"

#include <optional>

namespace win32tests {

/// Uses a file dialog of the system.
class CFileDialogUser final : public conformance::IFileDialogUser {
public:
    explicit CFileDialogUser(HWND dialog);

    conformance::IViewUser& Options() override { return *m_options; }
    bool Accept(const std::string& path) override;
    void Cancel() override;

    /// Into the field for the name, in place of what is there.
    void TypeName(const std::string& name);

    std::string ShownTitle() override;
    std::string ShownName() override;
    std::vector<std::string> ShownFilters() override;

private:
    bool IsOpen() const;

    HWND m_dialog;
    std::optional<CWin32ViewUser> m_options;
};

}
