#pragma once

#include "frontend/win32/WinApi.h"

namespace win32tests {

/// A top-level window of a host, active as long as it lives.
class CHostWindow {
public:
    CHostWindow();
    ~CHostWindow();
    CHostWindow(const CHostWindow&) = delete;
    CHostWindow& operator=(const CHostWindow&) = delete;

    HWND Get() const { return m_window; }

private:
    HWND m_window;
};

}
