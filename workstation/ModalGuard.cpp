#include "workstation/ModalGuard.h"

#include "frontend/qt/CommandEvent.h"

#include <QApplication>
#include <QWidget>

namespace workstation {

namespace {

/// `outer` null: everything is.
bool IsWithin(const QWidget* outer, const QObject& watched) {
    if (!outer) {
        return true;
    }
    for (const QObject* object = &watched; object; object = object->parent()) {
        if (object == outer) {
            return true;
        }
    }
    return false;
}

}

CModalGuard::CModalGuard() { QCoreApplication::instance()->installEventFilter(this); }

bool CModalGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == qt::kCommandEvent &&
        !(IsWithin(QApplication::activeModalWidget(), *watched) &&
          IsWithin(QApplication::activePopupWidget(), *watched))) {
        event->ignore();
    }
    return false;
}

}
