#include "workstation/Display.h"

#include <QDir>
#include <QLibrary>
#include <QLibraryInfo>
#include <QString>

#include <cstdlib>
#include <string>
#include <string_view>

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

struct Platform {
    std::string_view name; ///< or what names begin with: "xcb:nographicsbuffers", "wayland-egl"
    bool (*hasDisplay)();
};

constexpr Platform kPlatforms[] = {
    {"xcb", HasX11},
    {"wayland", HasWayland},
    {"offscreen", [] { return false; }},
    {"minimal", [] { return false; }},
};

bool HasDisplayOn(std::string_view platform) {
    for (const Platform& known : kPlatforms) {
        if (platform.starts_with(known.name)) {
            return known.hasDisplay();
        }
    }
    // One that draws without a display server.
    return !platform.empty();
}

}

bool HasDisplay() {
    const std::string platforms = Environment("QT_QPA_PLATFORM");
    if (platforms.empty()) {
        return HasX11() || HasWayland();
    }
    // The toolkit takes the first of a list that works.
    std::string_view rest = platforms;
    while (true) {
        const std::size_t end = rest.find(';');
        if (HasDisplayOn(rest.substr(0, end))) {
            return true;
        }
        if (end == std::string_view::npos) {
            return false;
        }
        rest.remove_prefix(end + 1);
    }
}

}
