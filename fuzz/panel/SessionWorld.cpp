// What host and device do in a session.

#include "fuzz/panel/Session.h"

#include "fuzz/panel/WorkshopDevice.h"
#include "fuzz/panel/Workstation.h"
#include "panel/device/DeviceType.h"

#include <iterator>

namespace fuzz {

namespace {

constexpr std::int32_t kStates[] = {contract::kConnectionDeviceReady,
                                    contract::kConnectionDeviceGone, 6, 0};
constexpr const char* kMessages[] = {"Erasing", "Erasing flash \xC3\xA9", "", "Verifying 100%"};
constexpr const char* kVersions[] = {"", "1.0", "2.5.13", "3.0.1", "99999999999.-1.x"};

}

void CSession::DoAsOthers() {
    static constexpr Deed kDeeds[] = {
        &CSession::ChangeConnectionState,
        &CSession::TellMode,
        &CSession::TellProgress,
        &CSession::ChangeDevice,
        &CSession::LoseDevice,
        &CSession::ReturnDevice,
        &CSession::RaiseIgnoredEvents,
        &CSession::Go,
        &CSession::SetConnection,
        &CSession::SetAccess,
        &CSession::SetContext,
        &CSession::Resize,
        &CSession::SwitchMessageService,
        &CSession::SwitchViewControl,
        &CSession::DestroyView,
        &CSession::ReleasePanel,
    };
    Do(kDeeds);
}

void CSession::DoBetween() {
    static constexpr Deed kDeeds[] = {
        &CSession::ExchangeDevice,
        &CSession::ChangeSettings,
        &CSession::SwitchPolling,
    };
    Do(kDeeds);
}

void CSession::ChangeConnectionState() {
    const std::int32_t state = kStates[m_input.Below(static_cast<int>(std::size(kStates)))];
    RaiseState(m_input.Happens(8) ? contract::kUnspecifiedFailure : contract::kSuccess, state);
}

void CSession::RaiseState(contract::Status status, std::int32_t state) {
    m_isGone = m_isGone || state == contract::kConnectionDeviceGone;
    WatchingType([&] { host.RaiseConnectionState(status, state); });
}

void CSession::WatchingType(const std::function<void()>& deed) {
    const auto known = panel ? State().deviceType : panel::DeviceType::Krx10;
    const bool mayRefresh = panel && State().refreshAllowed;
    deed();
    const bool isNew = panel && State().deviceType != known;
    m_isTypeNew = m_isTypeNew || (isNew && (!mayRefresh || !panel::IsKnown(State().deviceType)));
}

void CSession::RaiseIgnoredEvents() {
    host.RaiseConnectionEvent2(1, 2);
    m_device->RaiseEvent3(3, 4);
}

void CSession::Go() {
    WatchingType([this] { DoForPanel([this] { return panel->Go(); }); });
}

void CSession::SetConnection() {
    const std::shared_ptr<contract::IConnection> connections[] = {host.Connection(),
                                                                  m_otherConnection, nullptr};
    const auto& connection = connections[m_input.Below(3)];
    DoForPanel([&] { return panel->SetConnection(interception.Wrap(connection)); });
}

void CSession::SetAccess() {
    const auto access = m_input.Below(2) == 0 ? m_otherAccess : Access();
    DoForPanel([&] { return panel->SetSubsystemAccess(interception.Wrap(access)); });
}

void CSession::SetContext() {
    const auto context = interception.Wrap(m_input.Below(2) == 0 ? m_otherContext : host.Context());
    const bool registers = m_input.Below(2) == 0;
    DoForPanel([&] {
        return registers ? panel->SetContextAndRegister(context) : panel->SetContext(context);
    });
}

void CSession::Resize() {
    const int width = m_input.Number16();
    const int height = m_input.Number16();
    if (panel) {
        panel->Resize({width - 256, height - 256});
    }
}

void CSession::DestroyView() {
    if (panel) {
        panel->DestroyView();
    }
}

void CSession::ReleasePanel() { panel.reset(); }

void CSession::SwitchMessageService() {
    host.SetMessageService(m_input.Below(2) == 0 ? nullptr : MessageService());
}

void CSession::SwitchViewControl() {
    host.SetHostViewControl(m_input.Below(2) == 0 ? nullptr : viewControl);
}

void CSession::SwitchPolling() {
    m_isPolling = !m_isPolling;
    host.SetPollingEnabled(m_isPolling);
}

void CSession::ChangeSettings() {
    const char* version = kVersions[m_input.Below(static_cast<int>(std::size(kVersions)))];
    desktop->registry.PutText(kSettingsKey, "FlashVersion", version);
    desktop->registry.PutText(kSettingsKey, "FlashDir",
                              m_input.Happens(4) ? std::string(233, 'f') : PackageFolder());
    desktop->registry.openError = m_input.Happens(8) ? 5 : 0;
}

void CSession::TellMode() {
    const std::int32_t mode = m_input.Below(5);
    m_input.Happens(2) ? m_device->EnterMode(mode) : m_device->RaiseMode(mode);
}

void CSession::TellProgress() {
    const char* text = kMessages[m_input.Below(static_cast<int>(std::size(kMessages)))];
    const std::uint32_t done = m_input.Byte();
    m_device->RaiseMessage(text, done, m_input.Byte());
}

void CSession::ChangeDevice() { Alter(*m_device, m_input); }

void CSession::LoseDevice() {
    host.RemoveDevice();
    if (m_input.Below(2) == 0) {
        RaiseState(contract::kSuccess, contract::kConnectionDeviceGone);
    }
}

void CSession::ReturnDevice() {
    if (!host.Device()) {
        host.InsertDevice(m_device);
    }
    if (m_input.Below(2) == 0) {
        RaiseState(contract::kSuccess, contract::kConnectionDeviceReady);
    }
}

/// As hosts do it: the old device is gone before the new one is there.
void CSession::ExchangeDevice() {
    RaiseState(contract::kSuccess, contract::kConnectionDeviceGone);
    m_device = simulator::CDevice::Create(MakeDevice(m_input));
    host.InsertDevice(m_device);
    if (m_input.Below(4) != 3) {
        RaiseState(contract::kSuccess, contract::kConnectionDeviceReady);
    }
}

}
