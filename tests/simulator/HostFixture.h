#pragma once

#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/Connection.h"
#include "contract/host/Context.h"
#include "contract/host/SubsystemAccess.h"
#include "simulator/Device.h"
#include "simulator/Host.h"
#include "tests/simulator/Answers.h"
#include "tests/simulator/EventLog.h"

#include <chrono>
#include <vector>

namespace simulator {

/// A host as a panel sees it, whose waiting is only written down.
class HostFixture : public testing::Test {
protected:
    std::shared_ptr<CDevice> InsertDevice(DeviceDescription description);
    static DeviceDescription DeviceOfType(std::int32_t type);

    std::shared_ptr<contract::IProgrammingDeviceSubsystem> Subsystem();
    std::shared_ptr<contract::IProgrammingDeviceControl> Control();

    /// Subscribe `log` to the events and return the cookie.
    std::uint32_t HearDevice(const std::shared_ptr<CEventLog>& log);
    std::uint32_t HearConnection(const std::shared_ptr<CEventLog>& log);

    contract::Status CallGetHardwareInfo();

    std::vector<interception::CLatency::Duration> m_waits;
    CHost m_host{{true, [this](auto duration) { m_waits.push_back(duration); }}};
    const std::shared_ptr<CEventLog> m_log = std::make_shared<CEventLog>();
};

}
