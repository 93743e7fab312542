#include "panel/device/DeviceTypeReader.h"

#include "contract/device/HardwareInfo.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceConnection.h"
#include "panel/info/RefreshSequence.h"

namespace panel {

void CDeviceTypeReader::ReadDeviceType() {
    const auto control = m_services.device.Control();
    if (!control || !Read(control)) {
        return;
    }
    if (!IsKnown(m_services.state.deviceType)) {
        m_services.output.ShowMessage("Wrong prommer type detected.",
                                      LoadPanelString(StringId::PrommerMaintenance),
                                      contract::kSuccess, "", kWarningStyle);
        return;
    }
    m_refresh.RefreshDeviceInfo();
}

bool CDeviceTypeReader::Read(const std::shared_ptr<contract::IProgrammingDeviceControl>& control) {
    std::shared_ptr<contract::IHardwareInfo> hardware;
    contract::Status status =
        Obtain(control, &contract::IProgrammingDeviceControl::GetHardwareInfo, hardware);
    if (status.IsFailure()) {
        Report("Failed to read the Programming Device hardware info", status);
        return false;
    }
    auto type = static_cast<std::int32_t>(m_services.state.deviceType);
    status = Call(hardware, &contract::IHardwareInfo::GetDeviceType, type);
    if (status.IsFailure()) {
        Report("Failed to read the Programming Device type", status);
        return false;
    }
    m_services.state.deviceType = static_cast<DeviceType>(type);
    return true;
}

void CDeviceTypeReader::Report(const char* text, contract::Status status) {
    m_services.output.ReportError(text, LoadPanelString(StringId::PrommerMaintenance), status);
}

}
