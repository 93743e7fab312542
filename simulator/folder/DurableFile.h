#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

/// Writing that survives the end of the process, or of the power, at any instant.
namespace simulator {

/// Puts `bytes` into `file`, in place of what is there: `file` is never seen half written. They are
/// first written to `aside`, which must be on the same file system. After an error `file` is as it
/// was and `aside` is gone.
std::error_code WriteDurably(const std::filesystem::path& file, const std::filesystem::path& aside,
                             std::string_view bytes);

/// Makes the names in a folder durable.
std::error_code SyncFolder(const std::filesystem::path& folder);

/// Keeps other processes, and other locks of this one, out of a folder as long as it lives. Waits
/// for its turn.
class CFolderLock {
public:
    explicit CFolderLock(const std::filesystem::path& folder);
    ~CFolderLock();
    CFolderLock(const CFolderLock&) = delete;
    CFolderLock& operator=(const CFolderLock&) = delete;

    /// Why the folder could not be locked; no error when it is.
    std::error_code Error() const { return m_error; }

private:
    int m_folder;
    std::error_code m_error;
};

}
