#include "panel/info/FreeMemory.h"

#include "contract/device/FreeResources.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/device/DeviceConnection.h"

#include <string>

namespace panel {

namespace {

struct Amount {
    contract::Status (contract::IFreeResources::*read)(std::uint32_t&);
    const char* failureText;
    ControlId field;
};

constexpr Amount kAmounts[] = {
    {&contract::IFreeResources::GetFreeRamSize, "Free RAM size query failed", kFreeRamField},
    {&contract::IFreeResources::GetFreeFlashSize, "Free Flash size query failed", kFreeFlashField},
};

constexpr const char* kReportContext = "Update Free memory";

}

void CFreeMemory::UpdateFreeMemory() {
    CPanelView& view = m_services.view;
    const PanelState& state = m_services.state;
    if (IsKrx8Family(state.deviceType) && state.deviceMode != DeviceMode::Normal) {
        view->SetText(kFreeRamField, "0");
        view->SetText(kFreeFlashField, "0");
        return;
    }
    m_services.output.AppendStatusLine("Querying free memory resources");
    std::shared_ptr<contract::IFreeResources> resources;
    const contract::Status status =
        Obtain(m_services.device.Control(), &contract::IProgrammingDeviceControl::GetFreeResources,
               resources);
    if (status.IsFailure()) {
        m_services.output.ReportError("Free resources query failed", kReportContext, status);
        return;
    }
    for (const Amount& amount : kAmounts) {
        std::uint32_t sizeBytes = 0;
        const contract::Status read = Call(resources, amount.read, sizeBytes);
        if (read.IsFailure()) {
            m_services.output.ReportError(amount.failureText, kReportContext, read);
            return;
        }
        view->SetText(amount.field, std::to_string(sizeBytes));
    }
}

}
