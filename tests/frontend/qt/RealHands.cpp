#include "tests/frontend/qt/RealHands.h"

#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

namespace qttests {

namespace {

// Without waiting for the move, which never ends where the pointer stands already; the server takes
// what follows in order anyway.
QStringList MoveTo(const QWidget& widget, QPoint place) {
    const QPoint screen = widget.mapToGlobal(place);
    return {"mousemove", QString::number(screen.x()), QString::number(screen.y())};
}

}

void CRealHands::Click(const QWidget& widget, QPoint place, int button) const {
    Run(MoveTo(widget, place) + QStringList{"click", QString::number(button)});
}

void CRealHands::ClickHolding(const QString& key, const QWidget& widget, QPoint place) const {
    Run(MoveTo(widget, place) + QStringList{"keydown", key, "click", "1", "keyup", key});
}

void CRealHands::PressKey(const QString& key) const { Run({"key", key}); }

void CRealHands::Type(const QString& text) const { Run({"type", text}); }

void CRealHands::Activate(QWidget& window) const {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    Run({"windowfocus", "--sync", QString::number(window.winId())});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

// The event loop goes on meanwhile: the server asks its clients while it moves focus or pointer.
void CRealHands::Run(const QStringList& arguments) const {
    QProcess xdotool;
    xdotool.start("xdotool", arguments);
    ASSERT_TRUE(QTest::qWaitFor([&] { return xdotool.state() == QProcess::NotRunning; }, 10000))
        << qPrintable(arguments.join(' '));
    EXPECT_EQ(xdotool.exitCode(), 0) << xdotool.readAllStandardError().constData();
}

}
