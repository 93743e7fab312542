#include "frontend/registry/SettingsFile.h"

#include "frontend/registry/FileDescriptor.h"
#include "frontend/registry/SystemError.h"
#include "frontend/registry/WriteLock.h"
#include "panel/control/Registry.h"
#include "panel/control/Trace.h"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace registry {

namespace {

constexpr std::size_t kLargestFileBytes = 1 << 24;
constexpr const char* kNewSuffix = ".new";
constexpr mode_t kNewFileMode = 0644;
constexpr mode_t kPermissionBits = 07777;

// Reads the file, or says in `damage` why it cannot be one of settings. Returns an errno.
int ReadFile(const std::string& path, std::string& text, std::string& damage) {
    CFileDescriptor file;
    // Without waiting: the path may name a pipe that nobody writes to.
    if (const int error = file.Open(path, O_RDONLY | O_NONBLOCK)) {
        return error;
    }
    struct stat status {};
    if (fstat(file.Get(), &status) < 0) {
        return errno;
    }
    if (!S_ISREG(status.st_mode)) {
        damage = "it is not a file";
        return 0;
    }
    if (const int error = file.Read(kLargestFileBytes + 1, text)) {
        return error;
    }
    if (text.size() > kLargestFileBytes) {
        damage = "it is larger than 16 MiB";
    }
    return 0;
}

// The new file is as open to others as the one that it replaces.
mode_t ModeFor(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) < 0 ? kNewFileMode : status.st_mode & kPermissionBits;
}

int WriteAside(const std::string& path, const std::string& text, mode_t mode) {
    CFileDescriptor file;
    if (const int error = file.Open(path, O_WRONLY | O_CREAT | O_TRUNC, kNewFileMode)) {
        return error;
    }
    if (const int error = file.Write(text)) {
        return error;
    }
    if (fchmod(file.Get(), mode) < 0) {
        return errno;
    }
    return file.Sync();
}

// The new name is on the medium only when the folder is.
int SyncFolderOf(const std::string& path) {
    CFileDescriptor folder;
    const int error =
        folder.Open(std::filesystem::path(path).parent_path().string(), O_RDONLY | O_DIRECTORY);
    return error ? error : folder.Sync();
}

int ReplaceFile(const std::string& path, const std::string& text) {
    const std::string aside = path + kNewSuffix;
    int error = WriteAside(aside, text, ModeFor(path));
    if (!error && std::rename(aside.c_str(), path.c_str()) < 0) {
        error = errno;
    }
    if (error) {
        std::remove(aside.c_str());
        return error;
    }
    return SyncFolderOf(path);
}

std::string MakeAbsolute(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute.string();
}

// Where links lead to, so that writing replaces the file itself and all writers share one lock.
std::string ResolveLinks(const std::string& path) {
    std::error_code error;
    const std::filesystem::path resolved = std::filesystem::weakly_canonical(path, error);
    return error ? path : resolved.string();
}

}

CSettingsFile::CSettingsFile(const std::string& path, TraceSink trace)
    : m_path(MakeAbsolute(path)), m_trace(std::move(trace)) {}

int CSettingsFile::Load(Settings& settings) const {
    std::string text;
    std::string damage;
    const int error = ReadFile(m_path, text, damage);
    if (error == ENOENT) {
        settings = Settings::object();
        return panel::kRegistrySuccess;
    }
    if (error) {
        return ToErrorNumber(error);
    }
    if (damage.empty()) {
        damage = ParseSettings(text, settings);
    }
    if (damage.empty()) {
        return panel::kRegistrySuccess;
    }
    if constexpr (panel::kTraceLines) {
        m_trace("CSettingsFile::Load: " + m_path + " is damaged: " + damage + "\n");
    }
    return kInvalidData;
}

int CSettingsFile::Change(const std::function<void(Settings&)>& change) const {
    const std::string path = ResolveLinks(m_path);
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    if (error) {
        return ToErrorNumber(error.value());
    }
    CWriteLock lock;
    if (const int lockError = lock.Take(path)) {
        return ToErrorNumber(lockError);
    }
    return ChangeLocked(path, change);
}

int CSettingsFile::ChangeLocked(const std::string& path,
                                const std::function<void(Settings&)>& change) const {
    Settings before;
    if (const int error = Load(before)) {
        return error;
    }
    Settings after = before;
    change(after);
    if (after == before) {
        return panel::kRegistrySuccess;
    }
    const std::string text = FormatSettings(after);
    if (text.empty()) {
        return kNoUnicode;
    }
    if (text.size() > kLargestFileBytes) {
        return kFileTooLarge;
    }
    const int error = ReplaceFile(path, text);
    return error ? ToErrorNumber(error) : panel::kRegistrySuccess;
}

}
