#include "panel/netconf/NetworkConfiguration.h"

#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/Krx10Control.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/control/RefreshInhibition.h"
#include "panel/device/DeviceConnection.h"
#include "panel/device/ProductDetectionDisabler.h"
#include "panel/info/DeviceInformation.h"
#include "panel/info/RefreshSequence.h"
#include "panel/netconf/KRX10ConfTemplate.h"

#include <optional>

namespace panel {

using contract::IKrx10CommunicationConfiguration2;
using contract::Medium;
using contract::Status;

void CNetworkConfiguration::Configure() {
    if (!m_services.device.Control()) {
        m_services.output.ShowFatalError(LoadPanelString(StringId::Krx10Configuration));
        return;
    }
    CKRX10Conf dialog(m_services.state.network, m_help);
    const DialogOutcome outcome =
        m_services.toolkit.RunDialog(kKRX10ConfTemplate, dialog, Owner::Panel);
    if (outcome != DialogOutcome::Closed(kOkButton)) {
        return;
    }
    const NetworkChoice choice = dialog.Choice();
    // Kept before it is written, so a device that refuses it is proposed it again.
    m_services.state.network.description = choice.values.description;
    Apply(choice);
    if (choice.FormatsAny()) {
        BringBackMedia(choice);
        m_refresh.RefreshDeviceInfo();
    }
}

void CNetworkConfiguration::Apply(const NetworkChoice& choice) {
    Control control;
    if (!Passes(Obtain(m_services.device.Subsystem(),
                       &contract::IProgrammingDeviceSubsystem::GetKrx10Control, control),
                StringId::Krx10ControlFailed)) {
        return;
    }
    const CRefreshInhibition inhibition(m_services.state);
    // Ends after the disabler, though it begins later.
    std::optional<BusyCursor> busy;
    CProductDetectionDisabler disabler(m_services, false);
    if (choice.FormatsAny()) {
        disabler.Suspend();
    }
    if (!Format(control, choice)) {
        return;
    }
    const bool isAddressNew = choice.values.ipAddress != m_services.state.network.ipAddress;
    busy.emplace(m_services.toolkit);
    if (Write(control, choice, isAddressNew)) {
        ReadBack(control);
    }
}

bool CNetworkConfiguration::Format(const Control& control, const NetworkChoice& choice) {
    const auto prepare = [&](Medium medium, StringId failureText) {
        return Passes(Call(control, &contract::IKrx10Control::PrepareMedia, medium), failureText);
    };
    return (!choice.formatInternalFlash ||
            prepare(Medium::InternalFlash, StringId::FlashPreparationFailed)) &&
           (!choice.formatPcCard || prepare(Medium::PcCard, StringId::PcCardPreparationFailed));
}

bool CNetworkConfiguration::Write(const Control& control, const NetworkChoice& choice,
                                  bool isAddressNew) {
    Configuration configuration;
    if (!ObtainConfiguration(control, configuration)) {
        return false;
    }
    const NetworkValues& values = choice.values;
    const auto set = [&](bool isDue, auto operation, const auto& value) {
        return !isDue ||
               Passes(Call(configuration, operation, value), StringId::ConfigurationWriteFailed);
    };
    using Config = IKrx10CommunicationConfiguration2;
    return set(isAddressNew, &Config::SetIpAddress, values.ipAddress) &&
           set(true, &Config::SetDhcp, values.useDhcp) &&
           set(!values.useDhcp, &Config::SetSubnetMask, values.subnetMask) &&
           set(!values.useDhcp, &Config::SetGateway, values.gateway) &&
           set(true, &Config::SetDescription, values.description) &&
           Passes(Call(configuration, &Config::ApplyConfiguration),
                  StringId::ConfigurationWriteFailed);
}

void CNetworkConfiguration::ReadBack(const Control& control) {
    Configuration configuration;
    if (ObtainConfiguration(control, configuration)) {
        Passes(ReadValues(configuration), StringId::ConfigurationReadFailed);
    }
}

bool CNetworkConfiguration::ObtainConfiguration(const Control& control,
                                                Configuration& configuration) {
    using contract::IKrx10CommunicationConfiguration;
    std::shared_ptr<IKrx10CommunicationConfiguration> first;
    return Passes(Obtain(control, &contract::IKrx10Control::GetCommunicationConfiguration, first),
                  StringId::ConfigurationReadFailed) &&
           Passes(Query(first, &IKrx10CommunicationConfiguration::QueryCommunicationConfiguration2,
                        configuration),
                  StringId::ConfigurationReadFailed);
}

Status CNetworkConfiguration::ReadValues(const Configuration& configuration) {
    using Config = IKrx10CommunicationConfiguration2;
    NetworkValues& kept = m_services.state.network;
    Status status = contract::kSuccess;
    const auto read = [&](auto operation, auto& value) {
        auto fresh = value;
        status = Call(configuration, operation, fresh);
        if (status.IsSuccess()) {
            value = fresh;
        }
        return status.IsSuccess();
    };
    std::string text;
    if (read(&Config::GetIpAddressValue, kept.ipAddress) &&
        read(&Config::GetSubnetMask, kept.subnetMask) && read(&Config::GetGateway, kept.gateway) &&
        read(&Config::GetUseDhcp, kept.useDhcp) && read(&Config::GetIpAddress, text)) {
        CPanelView& view = m_services.view;
        view->SetText(view[kIpAddressField], text.empty() ? kNoAddress : text);
    }
    return status;
}

void CNetworkConfiguration::BringBackMedia(const NetworkChoice& choice) {
    using contract::IProgrammingDeviceControl;
    const auto& control = m_services.device.Control();
    Passes(Call(control, &IProgrammingDeviceControl::RequestMode, contract::ModeRequest::Normal),
           StringId::NormalModeFailed);
    const std::uint32_t mask = (choice.formatInternalFlash ? contract::kInternalFlashTest : 0) |
                               (choice.formatPcCard ? contract::kPcCardTest : 0);
    Passes(Call(control, &IProgrammingDeviceControl::RerunMediaTests, mask),
           StringId::MediaTestsFailed);
}

bool CNetworkConfiguration::Passes(Status status, StringId failureText) {
    if (status.IsFailure()) {
        m_services.output.ReportError(LoadPanelString(failureText),
                                      LoadPanelString(StringId::Krx10Configuration), status);
    }
    return status.IsSuccess();
}

}
