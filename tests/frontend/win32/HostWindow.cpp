#include "tests/frontend/win32/HostWindow.h"

#include "tests/frontend/win32/Input.h"

namespace win32tests {

CHostWindow::CHostWindow()
    : m_window(CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 800,
                               700, nullptr, nullptr, nullptr, nullptr)) {
    SetForegroundWindow(m_window);
    Pump();
}

CHostWindow::~CHostWindow() {
    DestroyWindow(m_window);
    Pump();
}

}
