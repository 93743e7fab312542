#pragma once

#include "panel/control/DialogHandler.h"

namespace qt {

/// The way from the widgets of a view to its handler. Shared by the view, which cuts it when it
/// ends, and the widgets, which may live a little longer: a view may end inside its own
/// notification, and then its widgets must still finish handling the event.
class CHandlerLink {
public:
    explicit CHandlerLink(panel::IDialogHandler& handler) : m_handler(&handler) {}

    void Cut() { m_handler = nullptr; }
    bool IsCut() const { return m_handler == nullptr; }

    template <class... Parameters, class... Arguments>
    void Notify(void (panel::IDialogHandler::*event)(Parameters...), Arguments... arguments) const {
        if (m_handler) {
            (m_handler->*event)(arguments...);
        }
    }

private:
    panel::IDialogHandler* m_handler;
};

}
