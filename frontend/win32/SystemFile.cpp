#include "frontend/win32/SystemFile.h"

#include "frontend/win32/Text.h"
#include "frontend/win32/WinApi.h"

#include <algorithm>
#include <array>
#include <limits>

namespace win32 {

namespace {

/// A file that is open.
class COpenFile {
public:
    COpenFile(const std::string& path, DWORD access, DWORD sharing, DWORD disposition)
        : m_handle(CreateFileW(ToWide(path).c_str(), access, sharing, nullptr, disposition,
                               FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~COpenFile() {
        if (IsOpen()) {
            CloseHandle(m_handle);
        }
    }
    COpenFile(const COpenFile&) = delete;
    COpenFile& operator=(const COpenFile&) = delete;

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_handle; }

private:
    const HANDLE m_handle;
};

}

// The folder may change between the two questions; the longer answer is then cut, not overrun.
std::string GetCurrentFolder() {
    std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
    const DWORD room = static_cast<DWORD>(folder.size());
    folder.resize(std::min(GetCurrentDirectoryW(room, folder.data()), room));
    return FromWide(folder);
}

std::optional<std::string> ReadWholeFile(const std::string& path) {
    const COpenFile file(path, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
    if (!file.IsOpen()) {
        return std::nullopt;
    }
    std::string content;
    std::array<char, 65536> part;
    for (DWORD length = 0;;) {
        if (!ReadFile(file.Get(), part.data(), static_cast<DWORD>(part.size()), &length, nullptr)) {
            return std::nullopt;
        }
        if (length == 0) {
            return content;
        }
        content.append(part.data(), length);
    }
}

bool WriteWholeFile(const std::string& path, std::string_view content) {
    const COpenFile file(path, GENERIC_WRITE, 0, CREATE_ALWAYS);
    if (!file.IsOpen()) {
        return false;
    }
    constexpr std::size_t kMost = std::numeric_limits<DWORD>::max();
    DWORD written = 1;
    while (!content.empty() && written > 0 &&
           ::WriteFile(file.Get(), content.data(),
                       static_cast<DWORD>(std::min(content.size(), kMost)), &written, nullptr)) {
        content.remove_prefix(written);
    }
    return true;
}

}
