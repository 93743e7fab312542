#include "panel/update/IniUpdate.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/DeviceControls.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/RefreshInhibition.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceConnection.h"
#include "panel/device/ProductDetectionDisabler.h"
#include "panel/info/RefreshSequence.h"
#include "panel/update/RegUpdate.h"
#include "panel/update/UpdateDecisions.h"

#include <optional>

namespace panel {

using contract::Status;

void CIniUpdate::UpdateFromChosenFile(CRefreshSequence& refresh) {
    std::optional<CRefreshInhibition> inhibition(std::in_place, m_services.state);
    CRegUpdate settings(m_services.toolkit, Owner::PanelParent);
    const auto path = settings.BrowseForOpenFile(LoadPanelString(StringId::IniFilter),
                                                 LoadPanelString(StringId::IniExtension), true);
    if (!path || path->empty()) {
        return;
    }
    const BusyCursor busy(m_services.toolkit);
    m_controls.EnableDeviceControls(false);
    const CProductDetectionDisabler disabler(m_services, true);
    const Status status = Update(*path);
    ShowOutcome(status);
    inhibition.reset();
    if (status.IsSuccess()) {
        refresh.RefreshDeviceInfo();
    } else {
        m_controls.EnableDeviceControls(true);
    }
}

bool CIniUpdate::UpdateFromPackage() {
    const BusyCursor busy(m_services.toolkit);
    const std::string path =
        PackageIniPath(m_settings.GetRegSzValue(kFlashDir), m_services.state.deviceType);
    std::optional<CRefreshInhibition> inhibition(std::in_place, m_services.state);
    const CProductDetectionDisabler disabler(m_services, true);
    const Status status = Update(path);
    inhibition.reset();
    ShowOutcome(status);
    return status == contract::kSuccess;
}

Status CIniUpdate::Update(const std::string& path) {
    return Call(m_services.device.Control(),
                &contract::IProgrammingDeviceControl::UpdateFromIniFile, path);
}

void CIniUpdate::ShowOutcome(Status status) {
    const std::string caption = LoadPanelString(StringId::UpdatingSoftware);
    if (status.IsFailure()) {
        m_services.output.ReportError(LoadPanelString(StringId::UpdateFailed), caption, status);
        return;
    }
    const UpdateMessage message = MessageFor(status);
    m_services.output.ShowMessage(LoadPanelString(message.text), caption, status, "",
                                  message.style);
}

}
