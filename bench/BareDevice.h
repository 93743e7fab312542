#pragma once

#include "contract/device/ProgrammingDeviceSubsystem.h"

#include <cstddef>

namespace bench {

/// What is done around each call.
enum class Caller {
    /// Nothing: the floor that no panel can be below.
    Bare,
    /// The error description is cleared before each call, as every client must that reports
    /// failures.
    Client,
};

/// Makes the device calls of a refresh whose cost depends on the number of files: the free memory,
/// which the device adds up anew, and the file listing. Returns the bytes of text seen, so that
/// nothing is optimised away.
std::size_t ReadFiles(contract::IProgrammingDeviceSubsystem& subsystem, Caller caller);

}
