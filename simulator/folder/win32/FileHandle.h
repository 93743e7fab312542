#pragma once

#include <system_error>

#include <windows.h>

namespace simulator {

/// The failure of the system call just made on this thread.
inline std::error_code LastError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

/// A handle that CreateFileW gave, or none.
class CFileHandle {
public:
    explicit CFileHandle(HANDLE handle) : m_handle(handle) {}
    ~CFileHandle() {
        if (IsOpen()) {
            CloseHandle(m_handle);
        }
    }
    CFileHandle(const CFileHandle&) = delete;
    CFileHandle& operator=(const CFileHandle&) = delete;

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_handle; }

private:
    const HANDLE m_handle;
};

}
