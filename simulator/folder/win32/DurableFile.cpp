#include "simulator/folder/DurableFile.h"

#include "simulator/folder/win32/FileHandle.h"

#include <algorithm>
#include <cstddef>

namespace simulator {

namespace {

std::error_code WriteAll(HANDLE file, std::string_view bytes) {
    constexpr std::size_t kMostAtOnce = std::size_t{1} << 30;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto part = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
        if (!WriteFile(file, bytes.data(), part, &written, nullptr)) {
            return LastError();
        }
        bytes.remove_prefix(written);
    }
    return {};
}

std::error_code WriteAndSync(const std::filesystem::path& path, std::string_view bytes) {
    const CFileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) {
        return LastError();
    }
    const auto error = WriteAll(file.Get(), bytes);
    if (error) {
        return error;
    }
    return FlushFileBuffers(file.Get()) ? std::error_code() : LastError();
}

std::error_code Replace(const std::filesystem::path& file, const std::filesystem::path& aside) {
    // Writing through makes the new name durable as well. ReplaceFileW would not do: its end at a
    // wrong instant leaves no file of that name.
    constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return MoveFileExW(aside.c_str(), file.c_str(), kHow) ? std::error_code() : LastError();
}

/// Carries out `act` until nobody else is in its way. Whoever has a file open, as a reader of the
/// device or a virus scanner does for a moment, keeps others here from writing or replacing it.
template <class Act>
std::error_code UntilNobodyIsInTheWay(const Act& act) {
    constexpr int kMostTries = 100;
    constexpr DWORD kPauseMs = 10;
    auto error = act();
    for (int tries = 1; tries < kMostTries && (error.value() == ERROR_SHARING_VIOLATION ||
                                               error.value() == ERROR_ACCESS_DENIED);
         ++tries) {
        Sleep(kPauseMs);
        error = act();
    }
    return error;
}

}

std::error_code WriteDurably(const std::filesystem::path& file, const std::filesystem::path& aside,
                             std::string_view bytes) {
    auto error = UntilNobodyIsInTheWay([&] { return WriteAndSync(aside, bytes); });
    if (!error) {
        error = UntilNobodyIsInTheWay([&] { return Replace(file, aside); });
    }
    if (error) {
        DeleteFileW(aside.c_str());
    }
    return error;
}

std::error_code SyncFolder(const std::filesystem::path&) {
    // Replacing a file has written its name through.
    return {};
}

}
