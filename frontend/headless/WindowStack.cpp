#include "frontend/headless/WindowStack.h"

#include <algorithm>
#include <iterator>

namespace headless {

void CWindowStack::OpenPanel(CHeadlessView& view) {
    m_windows.push_back(&view);
    m_panelView = &view;
}

void CWindowStack::Close(CHeadlessView& view) {
    if (whileClosing) {
        whileClosing();
    }
    std::erase(m_windows, &view);
    if (m_panelView == &view) {
        m_panelView = nullptr;
    }
}

bool CWindowStack::IsActive(const CHeadlessView& view) const {
    return !m_windows.empty() && m_windows.back() == &view;
}

// The box is not the last window when a view was made while it was open.
void CWindowStack::CloseBox() {
    const auto box = std::find(m_windows.rbegin(), m_windows.rend(), nullptr);
    m_windows.erase(std::next(box).base());
}

}
