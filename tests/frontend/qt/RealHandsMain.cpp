#include "tests/frontend/qt/TestApplication.h"
#include "tests/frontend/qt/VirtualDisplay.h"

#include <gtest/gtest.h>

// A mere listing of the tests needs no display.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const qttests::CVirtualDisplay display;
    qputenv("DISPLAY", display.GetName().c_str());
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Which shows dates in another way than a program without a locale would.
    qputenv("LC_ALL", "de_DE.UTF-8");
    const qttests::CTestApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
