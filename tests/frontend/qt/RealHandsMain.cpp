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
    const qttests::CTestApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
