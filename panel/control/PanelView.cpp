#include "panel/control/PanelView.h"

#include "panel/control/NullView.h"

#include <algorithm>

namespace panel {

namespace {

CNullView& NullView() {
    static CNullView view;
    return view;
}

}

CPanelView::CPanelView() : m_view(&NullView()) {}

void CPanelView::Detach() {
    m_view = &NullView();
    m_captured.clear();
}

bool CPanelView::Exists() const { return m_view != &NullView(); }

void CPanelView::Capture(std::span<const ControlId> ids) {
    for (const ControlId id : ids) {
        m_captured.push_back(m_view->Capture(id));
    }
}

ControlId CPanelView::operator[](ControlId id) const {
    const bool isCaptured = std::find(m_captured.begin(), m_captured.end(), id) != m_captured.end();
    return isCaptured ? id : kNoControl;
}

}
