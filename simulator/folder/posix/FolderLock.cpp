#include "simulator/folder/FolderLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace simulator {

CFolderLock::CFolderLock(const std::filesystem::path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    m_handle = descriptor;
    int result = descriptor < 0 ? -1 : ::flock(descriptor, LOCK_EX);
    while (result != 0 && errno == EINTR) {
        result = ::flock(descriptor, LOCK_EX);
    }
    if (result != 0) {
        m_error = {errno, std::generic_category()};
    }
}

CFolderLock::~CFolderLock() {
    if (m_handle >= 0) {
        ::close(static_cast<int>(m_handle));
    }
}

}
