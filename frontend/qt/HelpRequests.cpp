#include "frontend/qt/HelpRequests.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWidget>

#include <utility>

namespace qt {

namespace {

constexpr const char* kHelpContext = "helpContext";

bool IsHelpKey(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

std::uint32_t FindHelpContext(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (const std::uint32_t context = widget->property(kHelpContext).toUInt(); context != 0) {
            return context;
        }
    }
    return 0;
}

}

void SetHelpContext(QWidget& control, std::uint32_t context) {
    if (context != 0) {
        control.setProperty(kHelpContext, context);
    }
}

CHelpRequests::CHelpRequests(QWidget& view, std::shared_ptr<const CHandlerLink> link)
    : QObject(&view), m_view(view), m_link(std::move(link)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool CHelpRequests::eventFilter(QObject* watched, QEvent* event) {
    if (!IsHelpKey(*event) || !watched->isWidgetType() || m_link->IsCut()) {
        return false;
    }
    const auto& receiver = static_cast<const QWidget&>(*watched);
    if (!ConcernsView(receiver)) {
        return false;
    }
    m_link->Notify(&panel::IDialogHandler::OnHelp, FindHelpContext(&receiver));
    return true;
}

// A window none of whose controls has the focus gets the key itself.
bool CHelpRequests::ConcernsView(const QWidget& receiver) const {
    const QWidget* const window = m_view.window();
    if (m_isForWindow && receiver.window() == window) {
        return true;
    }
    return &receiver == &m_view || m_view.isAncestorOf(&receiver) ||
           (&receiver == window && !window->focusWidget());
}

}
