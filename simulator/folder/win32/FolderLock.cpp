#include "simulator/folder/FolderLock.h"

#include "simulator/folder/win32/FileHandle.h"

namespace simulator {

namespace {

/// There as long as somebody has the lock: a folder itself cannot be locked.
constexpr const wchar_t* kLockName = L"device.lock";

HANDLE Acquire(const std::filesystem::path& file) {
    constexpr DWORD kForNobodyElse = 0;
    return CreateFileW(file.c_str(), GENERIC_WRITE | DELETE, kForNobodyElse, nullptr, OPEN_ALWAYS,
                       FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
}

}

CFolderLock::CFolderLock(const std::filesystem::path& folder) {
    constexpr DWORD kPauseMs = 1;
    const auto file = folder / kLockName;
    HANDLE handle = Acquire(file);
    // LockFileEx could wait, but only on a file that stays.
    while (handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION) {
        Sleep(kPauseMs);
        handle = Acquire(file);
    }
    if (handle == INVALID_HANDLE_VALUE) {
        m_error = LastError();
        return;
    }
    m_handle = reinterpret_cast<std::intptr_t>(handle);
}

CFolderLock::~CFolderLock() {
    if (!m_error) {
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    }
}

}
