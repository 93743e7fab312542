#include "component/loader/ComponentLibrary.h"
#include "workstation/Offscreen.h"
#include "workstation/ToolkitMessages.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    workstation::FilterToolkitMessages();
    // Settings of the machine that the tests run on are none of theirs: here is a package that is
    // older than any device's.
    const QTemporaryDir folder;
    QFile settings(folder.filePath("registry.json"));
    if (!settings.open(QIODevice::WriteOnly) ||
        settings.write(R"({ "SOFTWARE/Vantor Mobile Phones/WstShared/Common/FlashUpdate":
                            { "FlashDir": "/nowhere", "FlashVersion": "0" } })") < 0) {
        return 1;
    }
    settings.close();
    qputenv("KRX8_REGISTRY", settings.fileName().toLocal8Bit());
    if (component::CComponentLibrary(KRX8_COMPONENT).Register().IsFailure()) {
        return 1;
    }
    const workstation::COffscreen offscreen;
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
