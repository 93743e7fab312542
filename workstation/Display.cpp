#include "workstation/Display.h"

#include <QByteArray>
#include <QDir>
#include <QLibraryInfo>
#include <QString>
#include <QtGlobal>

#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace workstation {

namespace {

// The screen of the offscreen platform, which is 800 x 800 unless it is told otherwise.
constexpr std::string_view kScreens =
    R"({"screens":[{"name":"offscreen","x":0,"y":0,"width":3840,"height":2160,"dpr":1}]})";

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

void ForwardMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
    for (const char* idle :
         {"This plugin does not support", "Detected locale", "QStandardPaths: XDG_RUNTIME_DIR",
          "QStandardPaths: runtime directory"})
        if (message.startsWith(idle))
            return;
    std::fprintf(stderr, "krx8-workstation: %s\n", qPrintable(message));
    if (type == QtFatalMsg)
        std::abort();
}

}

bool HasDisplay() {
    const std::string platform = Environment("QT_QPA_PLATFORM");
    if (!platform.empty())
        return !platform.starts_with("offscreen") && !platform.starts_with("minimal");
    return HasX11() || HasWayland();
}

// The platform wants its screens in a file; one in memory leaves no trace.
COffscreen::COffscreen() : m_screenFile(memfd_create("krx8-screens", MFD_CLOEXEC)) {
    QByteArray platform("offscreen");
    const auto size = static_cast<ssize_t>(kScreens.size());
    if (m_screenFile >= 0 && write(m_screenFile, kScreens.data(), kScreens.size()) == size)
        platform += ":configfile=/proc/self/fd/" + QByteArray::number(m_screenFile);
    qputenv("QT_QPA_PLATFORM", platform);
}

COffscreen::~COffscreen() {
    if (m_screenFile >= 0)
        close(m_screenFile);
}

void SilenceToolkit() { qInstallMessageHandler(ForwardMessage); }

}
