#pragma once

#include "frontend/registry/FileDescriptor.h"

#include <string>

namespace registry {

/// Keeps other writers of a file out while it lives, those of other processes included. Ends with
/// its process as well, however that ends.
class CWriteLock {
public:
    /// Waits until the lock beside `path` is free, and takes it. Answers 0 or an errno.
    int Take(const std::string& path);

private:
    CFileDescriptor m_file;
};

}
