#pragma once

#include "interception/Interceptor.h"

namespace sweeps {

/// While the device is lost, fails every call that a device would have answered, also those on
/// objects that were obtained before.
class CDeviceLoss final : public interception::IInterceptor {
public:
    contract::Status Call(const interception::Operation& operation,
                          interception::FunctionRef<contract::Status()> run) override;

    bool isLost = false;
};

}
