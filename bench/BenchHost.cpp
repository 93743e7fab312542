#include "bench/BenchHost.h"

#include "bench/Require.h"
#include "contract/device/SelfTestResults.h"
#include "contract/host/ExtConnectionEvents.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "panel/control/KRX8Maintenance.h"
#include "simulator/Device.h"

#include <string>
#include <utility>

namespace bench {

namespace {

class CHostView final : public contract::IHostViewControl {
public:
    contract::Status ClosePanel() override { return contract::kSuccess; }
};

constexpr const char* kNoPanel = "the panel could not be set up";

}

simulator::DeviceDescription DeviceWithFiles(std::int64_t count, Device kind) {
    simulator::DeviceDescription device;
    device.type = simulator::kKrx20;
    if (kind == Device::Intercepted) {
        // A knob that does nothing is a knob all the same.
        device.latency.operationsMs["FileInfo.GetName"] = 0;
    }
    for (std::int32_t test = 1; test <= contract::kSelfTestCount; ++test) {
        device.selfTests[static_cast<contract::SelfTest>(test)] = 0;
    }
    constexpr std::int32_t kTypes[] = {19, 21, 22};
    device.files.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i) {
        simulator::StoredFile file;
        file.name = "phone_code_" + std::to_string(i) + ".fia";
        file.type = kTypes[i % 3];
        file.id = static_cast<std::int32_t>(i);
        file.version = "2." + std::to_string(i % 100) + "." + std::to_string(i % 7);
        file.sizeBytes = static_cast<std::int32_t>(1024 + i % 100000);
        file.location = static_cast<std::int32_t>(1 + i % 3);
        file.generation = static_cast<std::uint32_t>(3 + i % 3);
        device.files.push_back(std::move(file));
    }
    if (count > 0) {
        // Without this file the panel offers an update at each refresh, and waits for the answer.
        device.files.front().name = simulator::kVersionFileName;
    }
    return device;
}

CBenchHost::CBenchHost(std::unique_ptr<panel::IToolkit> toolkit, void* nativeParent,
                       const simulator::DeviceDescription& device, simulator::KnobOptions knobs)
    : m_host(std::move(knobs)), m_panel(panel::CKRX8Maintenance::Create(std::move(toolkit))) {
    m_host.SetHostViewControl(std::make_shared<CHostView>());
    m_host.InsertDevice(simulator::CDevice::Create(device));
    Require(m_panel->SetContext(m_host.Context()), kNoPanel);
    Require(m_panel->CreateView(nativeParent), kNoPanel);
    Require(m_panel->SetSubsystemAccess(m_host.SubsystemAccess()), kNoPanel);
    Require(m_panel->SetConnection(m_host.Connection()), kNoPanel);
}

CBenchHost::~CBenchHost() { m_panel->DestroyView(); }

void CBenchHost::Refresh() {
    m_host.RaiseConnectionState(contract::kSuccess, contract::kConnectionDeviceReady);
}

void CBenchHost::LoseDevice() {
    m_host.RaiseConnectionState(contract::kSuccess, contract::kConnectionDeviceGone);
}

std::shared_ptr<contract::IProgrammingDeviceSubsystem> CBenchHost::Device() const {
    std::shared_ptr<contract::ISubsystem> subsystem;
    std::shared_ptr<contract::IProgrammingDeviceSubsystem> device;
    Require(
        m_host.SubsystemAccess()->GetSubsystem(contract::kProgrammingDeviceSubsystem, subsystem),
        kNoPanel);
    Require(subsystem->QueryProgrammingDeviceSubsystem(device), kNoPanel);
    return device;
}

void CBenchHost::RaiseMessage(std::uint32_t done, std::uint32_t total) {
    m_host.Device()->RaiseMessage("Writing flash", done, total);
}

void CBenchHost::RaiseNotice(const std::string& text) { m_host.Device()->RaiseMessage(text, 0, 0); }

}
