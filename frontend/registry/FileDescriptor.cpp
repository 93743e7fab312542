#include "frontend/registry/FileDescriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace registry {

namespace {

constexpr std::size_t kBlockBytes = 1 << 16;

template <class Call>
auto Repeat(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

}

int CFileDescriptor::Open(const std::string& path, int flags, mode_t mode) {
    Close();
    m_descriptor = Repeat([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); });
    return m_descriptor < 0 ? errno : 0;
}

int CFileDescriptor::Read(std::size_t limit, std::string& bytes) {
    std::array<char, kBlockBytes> block;
    while (bytes.size() < limit) {
        const std::size_t room = std::min(block.size(), limit - bytes.size());
        const ssize_t count = Repeat([&] { return read(m_descriptor, block.data(), room); });
        if (count < 0) {
            return errno;
        }
        if (count == 0) {
            break;
        }
        bytes.append(block.data(), static_cast<std::size_t>(count));
    }
    return 0;
}

int CFileDescriptor::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count =
            Repeat([&] { return write(m_descriptor, bytes.data(), bytes.size()); });
        if (count < 0) {
            return errno;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

int CFileDescriptor::Sync() {
    return Repeat([&] { return fsync(m_descriptor); }) < 0 ? errno : 0;
}

void CFileDescriptor::Close() {
    if (m_descriptor >= 0) {
        close(m_descriptor);
        m_descriptor = -1;
    }
}

}
