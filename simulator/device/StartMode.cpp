#include "simulator/device/StartMode.h"

#include "simulator/device/SelfTestRun.h"

namespace simulator {

std::int32_t ModeAfterStart(const DeviceDescription& device) {
    const auto mode = device.mode == kMaintenanceMode ? kNormalMode : device.mode;
    const bool canRun = HasPassed(device, contract::SelfTest::ApplicationSw);
    return mode == kNormalMode && !canRun ? kServiceMode : mode;
}

}
