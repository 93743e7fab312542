#pragma once

#include "simulator/DeviceDescription.h"
#include "simulator/Failure.h"

namespace simulator {

/// What a device makes of the network settings that it is asked to take: with DHCP, its address is
/// the lease that its network gives it. kInvalidArgument for settings no device can work with:
/// without DHCP, an address that is no host's, a mask with gaps, a gateway that is elsewhere; with
/// and without, a description longer than 110 characters or not UTF-8.
Outcome CompleteNetworkSettings(const DeviceDescription& device, NetworkSettings& settings);

}
