#include "panel/netconf/KRX10Conf.h"

#include "panel/control/Help.h"
#include "panel/control/Utf8.h"
#include "panel/control/View.h"
#include "panel/netconf/AddressOrder.h"
#include "panel/netconf/KRX10ConfTemplate.h"

namespace panel {

namespace {

constexpr std::size_t kLongestDescription = 110;

struct AddressControl {
    ControlId field;
    contract::AddressValue NetworkValues::*value;
    contract::AddressValue byDhcp;
};

constexpr AddressControl kAddressControls[] = {
    {kIpAddressEdit, &NetworkValues::ipAddress, contract::kAddressByDhcp},
    {kSubnetMaskEdit, &NetworkValues::subnetMask, 0},
    {kGatewayEdit, &NetworkValues::gateway, 0},
};

}

void CKRX10Conf::OnInit(IView& view) {
    m_view = &view;
    const NetworkValues& values = m_choice.values;
    view.SetTextLimit(kDescriptionEdit, kLongestDescription);
    for (const AddressControl& control : kAddressControls) {
        view.SetAddress(control.field, ToFieldAddress(values.*control.value));
    }
    EnableAddresses(!values.useDhcp);
    view.SetChecked(kUseDhcpBox, values.useDhcp);
    view.SetText(kDescriptionEdit, values.description);
}

void CKRX10Conf::OnCommand(ControlId id) {
    if (id == kUseDhcpBox) {
        EnableAddresses(!m_view->IsChecked(kUseDhcpBox));
    } else if (id == kOkButton) {
        TakeChoice();
        m_view->EndDialog(id);
    } else if (id == kCancelButton) {
        m_view->EndDialog(id);
    }
}

void CKRX10Conf::OnHelp(std::uint32_t context) { m_help.ShowHelp(context); }

void CKRX10Conf::EnableAddresses(bool enable) {
    for (const AddressControl& control : kAddressControls) {
        m_view->SetEnabled(control.field, enable);
    }
}

void CKRX10Conf::TakeChoice() {
    m_choice.formatInternalFlash = m_view->IsChecked(kInternalFlashBox);
    m_choice.formatPcCard = m_view->IsChecked(kPcCardBox);
    NetworkValues& values = m_choice.values;
    values.useDhcp = m_view->IsChecked(kUseDhcpBox);
    for (const AddressControl& control : kAddressControls) {
        values.*control.value =
            values.useDhcp ? control.byDhcp : ToDeviceAddress(m_view->GetAddress(control.field));
    }
    values.description = CutToUtf16Units(m_view->GetText(kDescriptionEdit), kLongestDescription);
}

}
