#pragma once

#include "contract/device/Krx10Control.h"
#include "simulator/Device.h"

#include <cstdint>

/// The operations on the media of a networked device.
namespace simulator {

/// PrepareMedia of the service: every file on the medium is gone, its self-test counts as not run,
/// and the device is in Maintenance mode until it is asked into Normal mode or reset. kNotReady
/// for a memory card that is not there.
Outcome PrepareMedia(CDevice& device, contract::Medium medium);

/// RerunMediaTests of the service. kInvalidArgument for other tests than those of the media, and
/// for a device without a network, which has none.
Outcome RerunMediaTests(CDevice& device, std::uint32_t mask);

}
