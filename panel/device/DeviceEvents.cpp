#include "panel/device/DeviceEvents.h"

#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/Trace.h"
#include "panel/control/Utf8.h"

namespace panel {

namespace {
constexpr std::size_t kLongestModeText = 100;
}

void CDeviceEvents::OnModeChanged(std::int32_t mode) {
    m_services.state.deviceMode = static_cast<DeviceMode>(mode);
    const std::string text = "Programming Device is in " +
                             std::string(ModeEnumToStr(m_services.state.deviceMode)) + " mode";
    m_services.output.AppendStatusLine(CutToBytes(text, kLongestModeText));
}

void CDeviceEvents::OnDeviceMessage(const std::string& text, std::uint32_t done,
                                    std::uint32_t total) {
    m_services.output.AppendStatusLine(text, done, total);
}

std::string_view CDeviceEvents::ModeEnumToStr(DeviceMode mode) const {
    switch (mode) {
    case DeviceMode::Normal:
        return "Normal";
    case DeviceMode::Service:
        return "Service";
    case DeviceMode::Maintenance:
        return "Maintenance";
    case DeviceMode::NotYetKnown:
        break;
    }
    Trace(m_services.toolkit, "CKRX8Maintenance::ModeEnumToStr: Unknown mode constant value %u\n",
          static_cast<unsigned>(mode));
    return "Unknown";
}

}
