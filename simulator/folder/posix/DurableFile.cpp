#include "simulator/folder/DurableFile.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <unistd.h>

namespace simulator {

namespace {

std::error_code LastError() { return {errno, std::generic_category()}; }

/// A file descriptor, or the error that it could not be had for.
class CDescriptor {
public:
    CDescriptor(const std::filesystem::path& path, int flags)
        : m_descriptor(::open(path.c_str(), flags | O_CLOEXEC, 0666)) {}
    ~CDescriptor() {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    CDescriptor(const CDescriptor&) = delete;
    CDescriptor& operator=(const CDescriptor&) = delete;

    bool IsOpen() const { return m_descriptor >= 0; }
    int Get() const { return m_descriptor; }

private:
    const int m_descriptor;
};

std::error_code WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return LastError();
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

std::error_code Sync(int descriptor) {
    return ::fsync(descriptor) == 0 ? std::error_code() : LastError();
}

std::error_code WriteAndSync(const std::filesystem::path& path, std::string_view bytes) {
    const CDescriptor file(path, O_WRONLY | O_CREAT | O_TRUNC);
    if (!file.IsOpen()) {
        return LastError();
    }
    const auto error = WriteAll(file.Get(), bytes);
    return error ? error : Sync(file.Get());
}

}

std::error_code WriteDurably(const std::filesystem::path& file, const std::filesystem::path& aside,
                             std::string_view bytes) {
    auto error = WriteAndSync(aside, bytes);
    if (!error) {
        std::filesystem::rename(aside, file, error);
    }
    if (error) {
        std::error_code ignored;
        std::filesystem::remove(aside, ignored);
    }
    return error;
}

std::error_code SyncFolder(const std::filesystem::path& folder) {
    const CDescriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
    return descriptor.IsOpen() ? Sync(descriptor.Get()) : LastError();
}

}
