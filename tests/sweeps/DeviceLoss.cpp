#include "tests/sweeps/DeviceLoss.h"

#include "contract/ErrorInfo.h"
#include "tests/sweeps/Plan.h"

namespace sweeps {

contract::Status CDeviceLoss::Call(const interception::Operation& operation,
                                   interception::FunctionRef<contract::Status()> run) {
    if (!isLost || operation.provider != interception::Provider::Device) {
        return run();
    }
    contract::SetErrorInfo(kLostDescription);
    return kLostStatus;
}

}
