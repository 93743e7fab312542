#pragma once

#include "contract/Status.h"

#include <cstdint>

namespace contract {

/// Memory that is free on the device at the moment of GetFreeResources; of a KRX-8 or KRX-8C the
/// panel asks for it in Normal mode only. One call at a time, on the thread of the call (see
/// ProgrammingDeviceControl.h); results are untouched on failure.
class IFreeResources {
public:
    virtual ~IFreeResources() = default;

    virtual Status GetFreeRamSize(std::uint32_t& sizeBytes) = 0;
    virtual Status GetFreeFlashSize(std::uint32_t& sizeBytes) = 0;
};

}
