#pragma once

#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/HostViewControl.h"
#include "contract/panel/Panel.h"
#include "panel/control/Toolkit.h"
#include "simulator/DeviceDescription.h"
#include "simulator/Host.h"

#include <cstdint>
#include <memory>
#include <string>

namespace bench {

/// How the calls of a device are led.
enum class Device {
    /// Straight into memory: a device without knobs.
    InMemory,
    /// Through interception, as those of the workstation and of a device with knobs.
    Intercepted,
};

/// A healthy KRX-20 with that many files.
simulator::DeviceDescription DeviceWithFiles(std::int64_t count, Device kind = Device::InMemory);

/// A panel connected to a simulated device, on whatever toolkit it is given.
class CBenchHost {
public:
    /// `nativeParent` as the toolkit needs it.
    CBenchHost(std::unique_ptr<panel::IToolkit> toolkit, void* nativeParent,
               const simulator::DeviceDescription& device, simulator::KnobOptions knobs = {});
    ~CBenchHost();
    CBenchHost(const CBenchHost&) = delete;
    CBenchHost& operator=(const CBenchHost&) = delete;

    /// Connection state 7: the panel reads the type and refreshes.
    void Refresh();
    /// Connection state 5: the device is gone.
    void LoseDevice();
    /// One progress message from the device.
    void RaiseMessage(std::uint32_t done, std::uint32_t total);
    /// One message without a percentage.
    void RaiseNotice(const std::string& text);
    contract::IPanel& Panel() { return *m_panel; }
    /// The device as the panel is handed it.
    std::shared_ptr<contract::IProgrammingDeviceSubsystem> Device() const;

private:
    simulator::CHost m_host;
    std::shared_ptr<contract::IPanel> m_panel;
};

}
