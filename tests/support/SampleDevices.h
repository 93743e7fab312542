#pragma once

#include "simulator/DeviceDescription.h"

#include <cstdint>
#include <string>
#include <vector>

namespace support {

/// A file with values that are easy to tell apart.
simulator::StoredFile File(const std::string& name, std::int32_t type, std::int32_t id,
                           const std::string& version = "1.0");

/// A healthy device of that type in Normal mode: every value set and different, all tests passed,
/// three files of which one is "version.fia".
simulator::DeviceDescription HealthyDevice(std::int32_t type);

}
