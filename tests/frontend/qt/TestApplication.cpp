#include "tests/frontend/qt/TestApplication.h"

#include <QFile>
#include <QFont>
#include <QFontInfo>

#include <cstdio>
#include <cstdlib>

namespace qttests {

namespace {

constexpr const char* kFontFamily = "DejaVu Sans";
constexpr int kFontPixels = 11;

constexpr const char* kScreen = R"({
    "synchronousWindowSystemEvents": false,
    "windowFrameMargins": false,
    "screens": [{"name": "test", "x": 0, "y": 0, "width": 1280, "height": 1024,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1.0}]
})";

// The off-screen platform says this of every window.
void PrintUnlessExpected(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support"))) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

}

CTestApplication::Environment::Environment() {
    qInstallMessageHandler(PrintUnlessExpected);
    for (const char* const variable : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
        qputenv(variable, folder.path().toUtf8());
    }
    // The desktop that the tests happen to run on has no say, nor its library's leaks.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    // Neither have the settings of the machine.
    qputenv("KRX8_REGISTRY", folder.filePath(QStringLiteral("registry.json")).toUtf8());
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        return;
    }
    QFile screen(folder.filePath(QStringLiteral("screen.json")));
    if (screen.open(QIODevice::WriteOnly)) {
        screen.write(kScreen);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
}

CTestApplication::CTestApplication(int& argc, char** argv) : m_application(argc, argv) {
    QFont font(QString::fromLatin1(kFontFamily));
    font.setPixelSize(kFontPixels);
    QApplication::setFont(font);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setCursorFlashTime(0);
    if (const QString family = QFontInfo(font).family(); family != QLatin1String(kFontFamily)) {
        std::fprintf(stderr, "The tests need the font %s; found %s.\n", kFontFamily,
                     qPrintable(family));
        std::exit(EXIT_FAILURE);
    }
}

}
