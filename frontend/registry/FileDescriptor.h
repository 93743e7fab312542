#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace registry {

/// Owns an open file of the system. Operations answer 0 or an errno and start again when a signal
/// interrupts them.
class CFileDescriptor {
public:
    CFileDescriptor() = default;
    ~CFileDescriptor() { Close(); }
    CFileDescriptor(const CFileDescriptor&) = delete;
    CFileDescriptor& operator=(const CFileDescriptor&) = delete;

    /// Opens `path` with the flags of open(2); not inherited by programs that are started.
    int Open(const std::string& path, int flags, mode_t mode = 0);
    /// Delivers all that follows, up to `limit` bytes.
    int Read(std::size_t limit, std::string& bytes);
    int Write(std::string_view bytes);
    /// Waits until what was written is on the medium.
    int Sync();
    int Get() const { return m_descriptor; }

private:
    void Close();

    int m_descriptor = -1;
};

}
