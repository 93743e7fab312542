#pragma once

#include <cstdint>
#include <filesystem>
#include <system_error>

namespace simulator {

/// Keeps other processes, and other locks of this one, out of a folder as long as it lives. Waits
/// for its turn. The end of the process ends the lock, however it comes.
class CFolderLock {
public:
    explicit CFolderLock(const std::filesystem::path& folder);
    ~CFolderLock();
    CFolderLock(const CFolderLock&) = delete;
    CFolderLock& operator=(const CFolderLock&) = delete;

    /// Why the folder could not be locked; no error when it is.
    std::error_code Error() const { return m_error; }

private:
    /// What the system knows the lock by; -1 for none.
    std::intptr_t m_handle = -1;
    std::error_code m_error;
};

}
