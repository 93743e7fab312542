#include "tests/component/win32/server/Process.h"

#include "frontend/win32/WinApi.h"

namespace component {

namespace {

constexpr DWORD kLongestMs = 60'000;

std::optional<unsigned long> AwaitEnd(HANDLE process) {
    if (WaitForSingleObject(process, kLongestMs) != WAIT_OBJECT_0) {
        TerminateProcess(process, 1);
        return std::nullopt;
    }
    DWORD status = 0;
    GetExitCodeProcess(process, &status);
    return status;
}

}

std::optional<unsigned long> RunProcess(std::wstring commandLine) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &process)) {
        return std::nullopt;
    }
    const auto status = AwaitEnd(process.hProcess);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return status;
}

}
