#include "panel/device/DeviceReset.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/RefreshInhibition.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceConnection.h"
#include "panel/device/ProductDetectionDisabler.h"
#include "panel/info/RefreshSequence.h"

#include <optional>

namespace panel {

void CDeviceReset::ResetDevice() {
    const BusyCursor busy(m_services.toolkit);
    std::optional<CRefreshInhibition> inhibition(std::in_place, m_services.state);
    const CProductDetectionDisabler disabler(m_services, true);
    const contract::Status status =
        Call(m_services.device.Control(), &contract::IProgrammingDeviceControl::RequestMode,
             contract::ModeRequest::Reset);
    inhibition.reset();
    if (status.IsFailure()) {
        m_services.output.ReportError(LoadPanelString(StringId::ResettingPrommer),
                                      LoadPanelString(StringId::PrommerMaintenance), status);
        return;
    }
    m_refresh.RefreshDeviceInfo();
}

}
