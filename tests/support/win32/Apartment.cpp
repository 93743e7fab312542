#include "tests/support/win32/Apartment.h"

#include <gtest/gtest.h>

#include <thread>

namespace support {

void RunInApartment(DWORD kind, const std::function<void()>& action) {
    const HANDLE end = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread thread([&] {
        EXPECT_EQ(CoInitializeEx(nullptr, kind), S_OK);
        action();
        CoUninitialize();
        SetEvent(end);
    });
    MSG message;
    // Whoever runs the tests ends them when this takes for ever.
    while (MsgWaitForMultipleObjects(1, &end, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageW(&message);
        }
    }
    thread.join();
    CloseHandle(end);
}

}
