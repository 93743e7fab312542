#pragma once

#include <cstdint>

namespace panel {

/// Operating mode of a device as it reports it; other values are kept.
enum class DeviceMode : std::int32_t { NotYetKnown = 0, Normal = 1, Service = 2, Maintenance = 3 };

}
