#include "tests/simulator/WriterProcess.h"

#include "tests/simulator/win32/WriterMain.h"

#include <array>
#include <string>

#include <windows.h>

namespace simulator {

const std::size_t CWriterProcess::kKillsPerStep = 4;

namespace {

constexpr UINT kKilled = 77;

std::wstring OwnProgram() {
    std::array<wchar_t, 32768> path{};
    EXPECT_NE(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())), 0u);
    return path.data();
}

HANDLE Start(std::wstring command, HANDLE output) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output;
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process{};
    constexpr BOOL kInheritsHandles = TRUE;
    EXPECT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, kInheritsHandles, 0,
                               nullptr, nullptr, &start, &process));
    CloseHandle(process.hThread);
    return process.hProcess;
}

}

CWriterProcess::CWriterProcess(WriterFixture& writer, std::size_t firstStep) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE reports = nullptr;
    HANDLE output = nullptr;
    EXPECT_TRUE(CreatePipe(&reports, &output, &inherited, 0));
    EXPECT_TRUE(SetHandleInformation(reports, HANDLE_FLAG_INHERIT, 0));
    SetEnvironmentVariableW(kWriterFolder, writer.DeviceFolder().c_str());
    SetEnvironmentVariableW(kWriterStep, std::to_wstring(firstStep).c_str());
    m_process = reinterpret_cast<std::intptr_t>(Start(L'"' + OwnProgram() + L'"', output));
    SetEnvironmentVariableW(kWriterFolder, nullptr);
    SetEnvironmentVariableW(kWriterStep, nullptr);
    CloseHandle(output);
    m_reports = reinterpret_cast<std::intptr_t>(reports);
}

CWriterProcess::~CWriterProcess() {
    CloseHandle(reinterpret_cast<HANDLE>(m_reports));
    CloseHandle(reinterpret_cast<HANDLE>(m_process));
}

std::size_t CWriterProcess::ReadReports(std::size_t most) {
    std::size_t count = 0;
    char byte = 0;
    DWORD read = 0;
    while (count < most &&
           ReadFile(reinterpret_cast<HANDLE>(m_reports), &byte, 1, &read, nullptr) && read == 1) {
        ++count;
    }
    return count;
}

void CWriterProcess::Kill() {
    const auto process = reinterpret_cast<HANDLE>(m_process);
    EXPECT_TRUE(TerminateProcess(process, kKilled)) << "The writer ended by itself";
    EXPECT_EQ(WaitForSingleObject(process, 60000), WAIT_OBJECT_0);
    DWORD status = 0;
    EXPECT_TRUE(GetExitCodeProcess(process, &status));
    EXPECT_EQ(status, kKilled) << "The writer ended by itself";
}

}
