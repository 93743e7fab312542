#include "tests/frontend/qt/TestApplication.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const qttests::CTestApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
