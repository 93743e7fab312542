#include "panel/control/DeviceControls.h"

#include "panel/control/PanelTemplate.h"

namespace panel {

namespace {

constexpr ControlId kNetworkControls[] = {kIpAddressLabel, kIpAddressField, kNetworkButton};
constexpr ControlId kDeviceControls[] = {kFileList, kUpdateButton, kDeleteButton, kReportButton,
                                         kResetButton};

std::string_view InfoTitle(DeviceType type) {
    switch (type) {
    case DeviceType::Krx8:
    case DeviceType::Krx8C:
        return "KRX-8 Info";
    case DeviceType::Krx10:
        return "KRX-10 Info";
    case DeviceType::Krx20:
        return "KRX-20 Info";
    case DeviceType::Krx21:
        return "KRX-21 Info";
    }
    return "KRX-unknown";
}

}

DeviceControlRules RulesFor(DeviceType type, bool enable) {
    return {InfoTitle(type), enable && !IsKrx8Family(type)};
}

void CDeviceControls::EnableDeviceControls(bool enable) {
    if (!m_view.Exists()) {
        return;
    }
    const DeviceControlRules rules = RulesFor(m_state.deviceType, enable);
    for (const ControlId id : kNetworkControls) {
        m_view->SetEnabled(m_view[id], rules.enableNetwork);
    }
    m_view->SetText(m_view[kInfoGroup], rules.infoTitle);
    for (const ControlId id : kDeviceControls) {
        m_view->SetEnabled(m_view[id], enable);
    }
    if (!enable) {
        m_view->SetEnabled(m_view[kDetailsButton], false);
    }
}

}
