#pragma once

#include "simulator/DeviceDescription.h"
#include "simulator/Failure.h"

#include <cstddef>
#include <string>

namespace simulator {

/// The bytes of a file that is new, or new in part, in a description.
struct NewContent {
    /// Its index in `DeviceDescription::files`.
    std::size_t file = 0;
    std::string bytes;
};

/// Where a device keeps what must outlive it. One call at a time.
class IDeviceStore {
public:
    virtual ~IDeviceStore() = default;

    /// Makes `description` the state that the next opening finds, and gives the file of `content`
    /// (null when no file has new bytes) the name under which its bytes are kept. After a failure,
    /// and after the end of the process at any instant, the state is the old one or the new one.
    virtual Outcome Save(DeviceDescription& description, const NewContent* content) = 0;
};

}
