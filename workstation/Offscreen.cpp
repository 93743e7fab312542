#include "workstation/Offscreen.h"

#include <QByteArray>
#include <QtGlobal>

#include <sys/mman.h>
#include <unistd.h>

#include <string_view>

namespace workstation {

namespace {

// In place of the platform's own screen of 800 x 800.
constexpr std::string_view kScreens =
    R"({"screens":[{"name":"offscreen","x":0,"y":0,"width":3840,"height":2160,"dpr":1}]})";

}

// The platform wants its screens in a file; one in memory leaves no trace.
COffscreen::COffscreen() : m_screenFile(memfd_create("krx8-screens", MFD_CLOEXEC)) {
    QByteArray platform("offscreen");
    const auto size = static_cast<ssize_t>(kScreens.size());
    if (m_screenFile >= 0 && write(m_screenFile, kScreens.data(), kScreens.size()) == size) {
        platform += ":configfile=/proc/self/fd/" + QByteArray::number(m_screenFile);
    }
    qputenv("QT_QPA_PLATFORM", platform);
}

COffscreen::~COffscreen() {
    if (m_screenFile >= 0) {
        close(m_screenFile);
    }
}

}
