#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <memory>

namespace contract {

class IKrx10CommunicationConfiguration;

/// Storage media that PrepareMedia can format.
enum class Medium : std::int32_t { InternalFlash = 1, PcCard = 2 };

/// What the networked devices (KRX-10, KRX-20, KRX-21) add. One call at a time, on the thread of
/// the call (see ProgrammingDeviceControl.h), where IProgrammingDeviceControl raises events that
/// come from inside it.
class IKrx10Control {
public:
    virtual ~IKrx10Control() = default;

    /// Delivers a new working copy of the network configuration. Untouched on failure.
    virtual Status GetCommunicationConfiguration(
        std::shared_ptr<IKrx10CommunicationConfiguration>& configuration) = 0;

    /// Formats a medium: every file on it is lost. Blocks until done; the device may leave Normal
    /// mode on the way.
    virtual Status PrepareMedia(Medium medium) = 0;
};

}
