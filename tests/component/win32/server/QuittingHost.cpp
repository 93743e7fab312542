// A host that shows the control in the system's container and ends without closing it, in the way
// that its argument names. Ends with 9 when it was shown.

#include "tests/component/win32/server/SystemContainer.h"

#include <cstdlib>
#include <string_view>

namespace {

constexpr int kShown = 9;

void HandleMessagesUntilQuit() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}

int main(int argc, char** argv) {
    const std::string_view way = argc > 1 ? argv[1] : "";
    if (FAILED(OleInitialize(nullptr))) {
        return EXIT_FAILURE;
    }
    component::PrepareContainers();
    const HWND host = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                      800, 600, nullptr, nullptr, nullptr, nullptr);
    const HWND container = component::OpenContainer(host);
    const bool isShown = IsWindowVisible(component::ControlWindowIn(container)) != FALSE;
    PostQuitMessage(0);
    HandleMessagesUntilQuit();
    if (way == "exit") {
        ExitProcess(isShown ? kShown : EXIT_FAILURE);
    }
    if (way == "uninitialize") {
        OleUninitialize();
    }
    return isShown ? kShown : EXIT_FAILURE;
}
