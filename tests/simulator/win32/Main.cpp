#include "tests/simulator/win32/WriterMain.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    return simulator::IsWriter() ? simulator::RunWriter() : RUN_ALL_TESTS();
}
