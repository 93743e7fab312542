#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <memory>

namespace contract {

class IFileInfo;

/// The files on the device at the moment of GetFileListing, in the device's own order; the panel
/// asks for them in Normal mode only. One call at a time, on the thread of the call (see
/// ProgrammingDeviceControl.h); results are untouched on failure.
class IFileListing {
public:
    virtual ~IFileListing() = default;

    /// Number of files; 0 or less means none.
    virtual Status GetFileCount(std::int32_t& count) = 0;
    /// The file at `index`, which counts from 1 to the count. Fails outside that range.
    virtual Status GetFileInfo(std::int32_t index, std::shared_ptr<IFileInfo>& info) = 0;
};

}
