#include "frontend/win32/CursorStack.h"

namespace win32 {

void CCursorStack::Push(LPCWSTR cursor) {
    m_entries.push_back({cursor, SetCursor(LoadCursorW(nullptr, cursor))});
}

void CCursorStack::Pop() {
    if (!m_entries.empty()) {
        SetCursor(m_entries.back().before);
        m_entries.pop_back();
    }
}

bool CCursorStack::ShowWait() const {
    if (m_entries.empty() || m_entries.back().wanted != IDC_WAIT) {
        return false;
    }
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    return true;
}

}
