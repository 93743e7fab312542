#pragma once

#include "simulator/Device.h"
#include "simulator/Failure.h"

#include <string>

namespace simulator {

/// UpdateFromIniFile of the service, as docs/update-description.md says. `isPartial`: some of the
/// files were loaded and some were not, which messages name. A failure has loaded none, unless it
/// is the device's folder that fails in the end.
Outcome UpdateFromIniFile(CDevice& device, const std::string& path, bool& isPartial);

}
