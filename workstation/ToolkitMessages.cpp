#include "workstation/ToolkitMessages.h"

#include <QString>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace workstation {

namespace {

constexpr const char* kIdle[] = {
    "This plugin does not support",
    "Detected locale",
    "QStandardPaths: XDG_RUNTIME_DIR",
    "QStandardPaths: runtime directory",
};

void Forward(QtMsgType type, const QMessageLogContext&, const QString& message) {
    for (const char* idle : kIdle) {
        if (message.startsWith(idle)) {
            return;
        }
    }
    std::fprintf(stderr, "krx8-workstation: %s\n", qPrintable(message));
    if (type == QtFatalMsg) {
        std::abort();
    }
}

}

void FilterToolkitMessages() { qInstallMessageHandler(Forward); }

}
