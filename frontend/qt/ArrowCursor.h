#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace qt {

/// Shows the arrow while a window that waits for the user is open, whatever cursor a command has
/// set meanwhile. All in the header: hosts use it for windows of their own, and do not link the
/// panel.
class CArrowCursor {
public:
    CArrowCursor() { QGuiApplication::setOverrideCursor(QCursor(Qt::ArrowCursor)); }
    ~CArrowCursor() { QGuiApplication::restoreOverrideCursor(); }
    CArrowCursor(const CArrowCursor&) = delete;
    CArrowCursor& operator=(const CArrowCursor&) = delete;
};

}
