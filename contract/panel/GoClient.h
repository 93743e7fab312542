#pragma once

#include "contract/Status.h"

namespace contract {

/// The host's start signal.
class IGoClient {
public:
    virtual ~IGoClient() = default;

    /// Tells the panel that the host has handed over everything. If the connection is up the panel
    /// reads the device and fills itself before it returns. Always succeeds.
    virtual Status Go() = 0;
};

}
