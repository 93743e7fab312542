#pragma once

#include "contract/Status.h"

#include <memory>

namespace contract {

/// Switch of the host's phone polling. User-interface thread only.
class IProductDetectionControl {
public:
    virtual ~IProductDetectionControl() = default;

    /// Whether the host polls for connected phones. Untouched on failure.
    virtual Status GetPollingEnabled(bool& enabled) = 0;
    virtual Status SetPollingEnabled(bool enabled) = 0;
};

/// The host's detection of connected phones. User-interface thread only.
class IProductDetection {
public:
    virtual ~IProductDetection() = default;

    /// Asks for the switch; kNoSuchInterface when polling cannot be switched.
    virtual Status
    QueryProductDetectionControl(std::shared_ptr<IProductDetectionControl>& control) = 0;
};

/// The host's product information subsystem. User-interface thread only.
class IProductInformation {
public:
    virtual ~IProductInformation() = default;

    virtual Status GetProductDetection(std::shared_ptr<IProductDetection>& detection) = 0;
};

}
