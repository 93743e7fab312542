#pragma once

#include "contract/device/ProgrammingDeviceSubsystem.h"

#include <cstddef>
#include <memory>

namespace bench {

/// Makes the device calls of a file listing and nothing else: the floor that no panel can be below.
/// Returns the bytes of text seen, so that nothing is optimised away.
std::size_t ReadAllFiles(contract::IProgrammingDeviceSubsystem& subsystem);

}
