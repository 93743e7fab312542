#pragma once

#include "fuzz/support/Input.h"
#include "simulator/Device.h"

namespace fuzz {

/// A device of any model, in any mode, with up to seven files in all places; by two bytes.
simulator::DeviceDescription MakeDevice(CInput& input);

/// Changes what the device holds, as if by itself: files, self-tests, memory card, versions. Raises
/// nothing.
void Alter(simulator::CDevice& device, CInput& input);

}
