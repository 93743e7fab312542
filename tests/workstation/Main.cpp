#include "workstation/Display.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    workstation::SilenceToolkit();
    const workstation::COffscreen offscreen;
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
