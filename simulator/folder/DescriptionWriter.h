#pragma once

#include "simulator/DeviceDescription.h"

#include <string>

namespace simulator {

/// The text of `device.json` for a description, laid out for people: groups of values a line each,
/// one line for each file and each fault. Reading it gives the description again, for one that was
/// itself read (values of which a reader makes a second one, such as an address text that is no
/// address, come from tests only).
std::string WriteDescription(const DeviceDescription& description);

}
