#pragma once

#include "frontend/qt/HandlerLink.h"

#include <QObject>

#include <cstdint>
#include <memory>

class QWidget;

namespace qt {

/// Gives a control the topic that F1 asks for.
void SetHelpContext(QWidget& control, std::uint32_t context);

/// Turns F1 in a view into a help request with the context of the control that has the focus, or of
/// the nearest widget around it that has one.
///
/// Watches the whole application, since a control may use up the key before the view sees it. A
/// child of the view's widget, which owns it.
class CHelpRequests final : public QObject {
public:
    CHelpRequests(QWidget& view, std::shared_ptr<const CHandlerLink> link);

    /// From now on answers for all of the window that the view is a part of.
    void AnswerForWindow() { m_isForWindow = true; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool ConcernsView(const QWidget& receiver) const;

    QWidget& m_view;
    std::shared_ptr<const CHandlerLink> m_link;
    bool m_isForWindow = false;
};

}
