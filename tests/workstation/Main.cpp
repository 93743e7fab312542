#include "workstation/Offscreen.h"
#include "workstation/ToolkitMessages.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    workstation::FilterToolkitMessages();
    const workstation::COffscreen offscreen;
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
