#include "tests/simulator/HostFixture.h"

#include "contract/device/HardwareInfo.h"
#include "contract/host/Subsystem.h"

namespace simulator {

namespace {

template <class Sinks>
std::uint32_t Hear(contract::IBaseObject<Sinks>& base, const std::shared_ptr<CEventLog>& log) {
    const auto source = ObjectOf(base, &contract::IBaseObject<Sinks>::FindEventSource);
    std::uint32_t cookie = 0;
    EXPECT_EQ(source->Subscribe(log, cookie), contract::kSuccess);
    return cookie;
}

}

std::shared_ptr<CDevice> HostFixture::InsertDevice(DeviceDescription description) {
    auto device = CDevice::Create(std::move(description));
    m_host.InsertDevice(device);
    return device;
}

DeviceDescription HostFixture::DeviceOfType(std::int32_t type) {
    DeviceDescription description;
    description.type = type;
    return description;
}

std::shared_ptr<contract::IProgrammingDeviceSubsystem> HostFixture::Subsystem() {
    std::shared_ptr<contract::ISubsystem> subsystem;
    EXPECT_EQ(
        m_host.SubsystemAccess()->GetSubsystem(contract::kProgrammingDeviceSubsystem, subsystem),
        contract::kSuccess);
    return ObjectOf(*subsystem, &contract::ISubsystem::QueryProgrammingDeviceSubsystem);
}

std::shared_ptr<contract::IProgrammingDeviceControl> HostFixture::Control() {
    return ObjectOf(*Subsystem(),
                    &contract::IProgrammingDeviceSubsystem::get_ProgrammingDeviceControl);
}

std::uint32_t HostFixture::HearDevice(const std::shared_ptr<CEventLog>& log) {
    return Hear(*ObjectOf(*Control(), &contract::IProgrammingDeviceControl::QueryBaseObject), log);
}

std::uint32_t HostFixture::HearConnection(const std::shared_ptr<CEventLog>& log) {
    return Hear(*ObjectOf(*m_host.Connection(), &contract::IConnection::QueryBaseObject), log);
}

contract::Status HostFixture::CallGetHardwareInfo() {
    std::shared_ptr<contract::IHardwareInfo> info;
    return Control()->GetHardwareInfo(info);
}

}
