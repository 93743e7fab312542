#include "workstation/Display.h"

#include <QDir>
#include <QLibraryInfo>
#include <QString>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>

namespace workstation {

namespace {

std::string Environment(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

bool AnswersAt(std::string_view path, bool isAbstract) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::size_t start = isAbstract ? 1 : 0;
    if (path.size() + start >= sizeof(address.sun_path))
        return false;
    std::ranges::copy(path, address.sun_path + start);
    const auto length = offsetof(sockaddr_un, sun_path) + start + path.size();
    const int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers = connect(connection, reinterpret_cast<const sockaddr*>(&address),
                                 static_cast<socklen_t>(length)) == 0;
    close(connection);
    return answers;
}

// ":0" or ":0.0" is a socket of this machine, anything else is taken on trust: the toolkit ends the
// program when a display does not answer.
bool HasX11() {
    const std::string display = Environment("DISPLAY");
    if (!display.starts_with(':'))
        return !display.empty();
    const std::string number = display.substr(1, display.find('.') - 1);
    const std::string path = "/tmp/.X11-unix/X" + number;
    return AnswersAt(path, false) || AnswersAt(path, true);
}

bool HasWayland() {
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
    return !Environment("WAYLAND_DISPLAY").empty() &&
           !plugins.entryList({"libqwayland*"}).isEmpty();
}

}

bool HasDisplay() {
    const std::string platform = Environment("QT_QPA_PLATFORM");
    if (!platform.empty())
        return !platform.starts_with("offscreen") && !platform.starts_with("minimal");
    return HasX11() || HasWayland();
}

}
