#pragma once

#include "contract/device/Krx10CommunicationConfiguration.h"
#include "panel/device/DeviceMode.h"
#include "panel/device/DeviceType.h"

#include <string>

namespace panel {

/// The network values of the connected device as last read, kept for the configuration dialog. A
/// read that fails leaves the older value.
struct NetworkValues {
    contract::AddressValue ipAddress = 0;
    contract::AddressValue subnetMask = 0;
    contract::AddressValue gateway = 0;
    bool useDhcp = true;
    /// At most 110 bytes of UTF-8 as read, at most 110 characters as the dialog takes it.
    std::string description;
};

/// What the panel knows of itself and its device, shared by its rooms.
struct PanelState {
    /// A KRX-10 until the real type has been read, so that nothing is withheld from the user for
    /// want of an answer. May hold values outside the enumeration.
    DeviceType deviceType = DeviceType::Krx10;
    DeviceMode deviceMode = DeviceMode::NotYetKnown;
    /// False while a long device command works, so that events arriving meanwhile start no refresh.
    bool refreshAllowed = true;
    NetworkValues network;
    /// Normalised version of the device's "version.fia", at most 79 characters; empty when the
    /// device holds none.
    std::string installedPackageVersion;
};

}
