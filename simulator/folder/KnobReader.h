#pragma once

#include "simulator/DeviceDescription.h"
#include "simulator/folder/DescriptionNode.h"

namespace simulator {

/// Reads "faults", "latency" and "loss" of a description, each of which may be absent. Throws a
/// DescriptionError.
void ReadKnobs(const CDescriptionNode& root, DeviceDescription& description);

}
