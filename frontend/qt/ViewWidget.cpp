#include "frontend/qt/ViewWidget.h"

#include <utility>

namespace qt {

void CViewWidget::SetResizeListener(std::function<void()> listener) {
    m_resizeListener = std::move(listener);
}

void CViewWidget::resizeEvent(QResizeEvent*) {
    if (m_resizeListener) {
        m_resizeListener();
    }
}

}
