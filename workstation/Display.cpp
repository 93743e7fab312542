#include "workstation/Display.h"

#include <QDir>
#include <QLibrary>
#include <QLibraryInfo>
#include <QString>

#include <cstdlib>
#include <string>

namespace workstation {

namespace {

std::string Environment(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

// The toolkit ends the program when a display does not answer or refuses the user, so it is asked
// first, by the library that the toolkit's own plugin uses (xcb.h of libxcb 1.15).
bool HasX11() {
    if (Environment("DISPLAY").empty()) {
        return false;
    }
    QLibrary xcb("xcb", 1);
    using Connect = void* (*)(const char* display, int* screen);
    const auto connect = reinterpret_cast<Connect>(xcb.resolve("xcb_connect"));
    const auto hasError = reinterpret_cast<int (*)(void*)>(xcb.resolve("xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<void (*)(void*)>(xcb.resolve("xcb_disconnect"));
    if (!connect || !hasError || !disconnect) {
        return false;
    }
    void* const connection = connect(nullptr, nullptr);
    const bool answers = hasError(connection) == 0;
    disconnect(connection);
    return answers;
}

bool HasWayland() {
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
    return !Environment("WAYLAND_DISPLAY").empty() &&
           !plugins.entryList({"libqwayland*"}).isEmpty();
}

}

bool HasDisplay() {
    const std::string platform = Environment("QT_QPA_PLATFORM");
    if (!platform.empty()) {
        return !platform.starts_with("offscreen") && !platform.starts_with("minimal");
    }
    return HasX11() || HasWayland();
}

}
