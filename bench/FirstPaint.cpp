#include "bench/FirstPaint.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMetaObject>

#include <unistd.h>

namespace bench {

namespace {

class CFirstPaintWatch final : public QObject {
public:
    CFirstPaintWatch() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (receiver->isWidgetType() && event->type() == QEvent::Paint) {
            QCoreApplication::instance()->removeEventFilter(this);
            // Once the event has been handled the whole window is painted and on the screen.
            QMetaObject::invokeMethod(
                this, [] { _exit(0); }, Qt::QueuedConnection);
        }
        return false;
    }
};

}

QObject* CFirstPaintPlugin::create(const QString&, const QString&) { return new CFirstPaintWatch; }

}
