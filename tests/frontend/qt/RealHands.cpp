#include "tests/frontend/qt/RealHands.h"

#include <QLineEdit>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace qttests {

namespace {

xcb_atom_t AtomOf(xcb_connection_t& server, const char* name) {
    const auto cookie =
        xcb_intern_atom(&server, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(&server, cookie, nullptr), &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

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

void CRealHands::TypeFileName(const QFileDialog& dialog, const QString& path) const {
    auto& name = *dialog.findChild<QLineEdit*>("fileNameEdit");
    // The toolkit offers names of files once it has read the folder. A key that comes just then
    // goes into closing that list.
    name.setCompleter(nullptr);
    Click(name);
    PressKey("ctrl+a");
    Type(path);
}

// As a client of its own: xdotool has no such request, and destroys the window instead.
void CRealHands::RequestClose(const QWidget& window) const {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> server(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    ASSERT_EQ(xcb_connection_has_error(server.get()), 0);
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = static_cast<xcb_window_t>(window.winId());
    event.type = AtomOf(*server, "WM_PROTOCOLS");
    event.data.data32[0] = AtomOf(*server, "WM_DELETE_WINDOW");
    event.data.data32[1] = XCB_CURRENT_TIME;
    const auto cookie =
        xcb_send_event_checked(server.get(), 0, event.window, XCB_EVENT_MASK_NO_EVENT,
                               reinterpret_cast<const char*>(&event));
    // Waited for: the server does not read what a client has sent that is gone by then.
    const std::unique_ptr<xcb_generic_error_t, decltype(&std::free)> error(
        xcb_request_check(server.get(), cookie), &std::free);
    EXPECT_FALSE(error);
}

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
