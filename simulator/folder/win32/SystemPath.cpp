#include "simulator/folder/SystemPath.h"

#include "simulator/folder/MessageText.h"
#include "simulator/folder/win32/FileHandle.h"
#include "simulator/folder/win32/WideText.h"

#include <algorithm>

namespace simulator {

namespace {

using Path = std::filesystem::path;

std::wstring UpperCase(std::wstring text) {
    CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

/// The name of a device such as "nul", which is one in every folder and with every extension.
bool IsDeviceName(std::string_view name) {
    auto stem = UpperCase(ToWide(name.substr(0, name.find('.'))));
    stem.erase(stem.find_last_not_of(L' ') + 1);
    if (stem.size() == 4 && stem[3] >= L'1' && stem[3] <= L'9') {
        stem.resize(3);
        return stem == L"COM" || stem == L"LPT";
    }
    return stem == L"CON" || stem == L"PRN" || stem == L"AUX" || stem == L"NUL";
}

bool IsNeverInNames(char character) {
    return static_cast<unsigned char>(character) < 0x20 ||
           std::string_view("<>:\"/\\|?*").find(character) != std::string_view::npos;
}

bool IsMissing(const std::error_code& error) {
    return error.value() == ERROR_FILE_NOT_FOUND || error.value() == ERROR_PATH_NOT_FOUND;
}

}

Path PathOf(std::string_view text) { return ToWide(text); }

std::string TextOfPath(const Path& path) { return FromWide(path.native()); }

std::string QuotePath(const Path& path) {
    // Not as JSON writes it: doubled separators make a path unreadable, and no name has a quote.
    return '"' + EscapeForMessage(TextOfPath(path)) + '"';
}

Path ResolvePath(const Path& path, std::error_code& error) {
    constexpr DWORD kNoAccess = 0;
    constexpr DWORD kForAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const CFileHandle file(CreateFileW(path.c_str(), kNoAccess, kForAll, nullptr, OPEN_EXISTING,
                                       FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!file.IsOpen()) {
        error = LastError();
        const auto parent = path.parent_path();
        if (!IsMissing(error) || parent.empty() || parent == path) {
            return {};
        }
        error.clear();
        return ResolvePath(parent, error) / path.filename();
    }
    constexpr DWORD kLongestPath = 32768;
    std::wstring text(kLongestPath, L'\0');
    const auto length = GetFinalPathNameByHandleW(file.Get(), text.data(), kLongestPath, 0);
    if (length == 0 || length >= kLongestPath) {
        error = LastError();
        return {};
    }
    text.resize(length);
    error.clear();
    return text;
}

bool IsPlainFileName(std::string_view name) {
    // The system drops dots and spaces at the end.
    return !name.empty() && name.back() != '.' && name.back() != ' ' && !IsDeviceName(name) &&
           std::none_of(name.begin(), name.end(), IsNeverInNames);
}

std::string FileNameKey(std::string_view name) { return FromWide(UpperCase(ToWide(name))); }

}
