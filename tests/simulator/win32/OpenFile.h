#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include <windows.h>

namespace simulator {

/// Has a file open as long as it lives, as another program would, which keeps everybody from
/// replacing it.
class COpenFile {
public:
    /// `shared` is what others may do with it: 0 or FILE_SHARE_READ.
    COpenFile(const std::filesystem::path& path, DWORD shared)
        : m_file(
              CreateFileW(path.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(m_file, INVALID_HANDLE_VALUE);
    }
    ~COpenFile() { CloseHandle(m_file); }
    COpenFile(const COpenFile&) = delete;
    COpenFile& operator=(const COpenFile&) = delete;

private:
    const HANDLE m_file;
};

}
