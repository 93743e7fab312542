#pragma once

#include "contract/Status.h"

#include <cstdint>

namespace contract {

/// The external storages (memory cards) that the device holds. One call at a time, on the thread of
/// the call (see ProgrammingDeviceControl.h).
class IExternalStorages {
public:
    virtual ~IExternalStorages() = default;

    /// Number of cards; above 0 means that files can be moved to external storage. Untouched on
    /// failure.
    virtual Status GetCount(std::int32_t& count) = 0;
};

}
