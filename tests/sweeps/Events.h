#pragma once

#include "tests/sweeps/Plan.h"

#include <span>
#include <vector>

namespace sweeps {

/// The events that device and connection raise.
std::span<const Event> DeviceAndConnectionEvents();

/// What a host may do of itself while the panel is at work.
std::span<const Event> HostInterventions();

/// What a host has done, or will do, at the start, done once more: with the same object or with
/// another one.
std::span<const Event> HostRepetitions();

/// All of them.
std::vector<const Event*> EventsAndInterventions();

}
