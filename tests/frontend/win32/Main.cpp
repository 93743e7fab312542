#include "frontend/win32/WinApi.h"

#include <gtest/gtest.h>

#include <ole2.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The system's file dialogs need the apartment that a host has.
    if (FAILED(OleInitialize(nullptr))) {
        return 2;
    }
    const int result = RUN_ALL_TESTS();
    OleUninitialize();
    return result;
}
