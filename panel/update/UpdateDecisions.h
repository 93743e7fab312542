#pragma once

#include "contract/Status.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceType.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace panel {

/// Whether to offer the package on this machine to a device: when it is newer than what the device
/// carries, and always when the device names no version, which is what a broken update leaves.
/// Both normalised.
bool IsUpdateOffered(std::string_view package, std::string_view installed);

/// The path of the package's description for a device type, in a package folder, cut to 260
/// characters. With backslashes, since the device service is what reads it.
std::string PackageIniPath(std::string_view packageFolder, DeviceType type);

/// What the user is told of an update that did not fail.
struct UpdateMessage {
    StringId text;
    std::uint32_t style;

    friend constexpr bool operator==(UpdateMessage, UpdateMessage) = default;
};

UpdateMessage MessageFor(contract::Status success);

}
