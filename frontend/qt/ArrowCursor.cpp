#include "frontend/qt/ArrowCursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace qt {

CArrowCursor::CArrowCursor() { QGuiApplication::setOverrideCursor(QCursor(Qt::ArrowCursor)); }

CArrowCursor::~CArrowCursor() { QGuiApplication::restoreOverrideCursor(); }

}
