#pragma once

#include "tests/sweeps/Plan.h"

#include <span>
#include <vector>

namespace sweeps {

/// The events that device and connection raise.
std::span<const Event> DeviceAndConnectionEvents();

/// What a host may do of itself while the panel is at work.
std::span<const Event> HostInterventions();

/// All of them.
std::vector<const Event*> EventsAndInterventions();

}
