#pragma once

#include "simulator/DeviceDescription.h"

#include <cstdint>

namespace simulator {

/// The mode in which the device comes back from a start, by what it holds: the one it is in, but
/// Normal mode from Maintenance mode, which is its way of waiting for a start, and Service mode in
/// place of Normal mode while its application software has failed the self-test.
///
/// A start is a reset or the end of loading code. Opening a device folder is none: the device is
/// then found in the mode in which it was left.
std::int32_t ModeAfterStart(const DeviceDescription& device);

}
