#include "frontend/registry/WriteLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace registry {

namespace {

// The lock is a file of its own, since the settings file is replaced by each writing. It stays: a
// writer that removed it could leave two others with a lock each.
constexpr const char* kSuffix = ".lock";
constexpr mode_t kEverybodyReads = 0644;

}

int CWriteLock::Take(const std::string& path) {
    // For reading: a lock asks for no more, and the file may be another user's.
    if (const int error = m_file.Open(path + kSuffix, O_RDONLY | O_CREAT, kEverybodyReads)) {
        return error;
    }
    while (flock(m_file.Get(), LOCK_EX) < 0) {
        if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

}
