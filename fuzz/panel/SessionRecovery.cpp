// What a host does after a session, whatever went wrong in it: it hands everything over once more
// and connects a good device, which the panel must then show and work on.

#include "fuzz/panel/Session.h"

#include "fuzz/support/Require.h"
#include "fuzz/support/SoundView.h"
#include "tests/support/SampleDevices.h"

#include <string>

namespace fuzz {

namespace {

using simulator::DeviceDescription;

constexpr std::size_t kColumns = 7;

DeviceDescription GoodDevice(CInput& input) {
    return support::HealthyDevice(1 + input.Below(simulator::kKrx21));
}

}

/// A panel whose view was made without a view control stays bare, and one whose subscription to the
/// device's events failed never tries again.
bool CSession::CanRecover() {
    return panel && PanelView() && View().Columns(panel::kFileList).size() == kColumns &&
           host.DeviceSubscriberCount() > 0;
}

void CSession::Recover() {
    m_device = simulator::CDevice::Create(GoodDevice(m_input));
    // From here on the user does the obvious, nobody interrupts, and no call fails.
    m_input = CInput(nullptr, 0);
    PrepareStep();
    m_isRecovering = true;
    desktop->registry.openError = 0;
    host.SetMessageService(MessageService());
    host.SetHostViewControl(viewControl);
    DoForPanel([this] { return panel->SetSubsystemAccess(interception.Wrap(Access())); });
    if (!CanRecover()) {
        return;
    }
    DoForPanel([this] { return panel->SetConnection(nullptr); });
    DoForPanel([this] { return panel->SetConnection(interception.Wrap(host.Connection())); });
    host.InsertDevice(m_device);
    host.RaiseConnectionState(contract::kSuccess, contract::kConnectionDeviceGone);
    host.RaiseConnectionState(contract::kSuccess, contract::kConnectionDeviceReady);
    m_isTypeNew = false;
    RequireSound();
    RequireShown();
    RequireReport();
    RequireDeletion();
}

void CSession::RequireShown() {
    const DeviceDescription device = m_device->State();
    Require(State().deviceMode == panel::DeviceMode::Normal, "the mode is known");
    RequireEqual(Field(panel::kBootSwField), device.software.boot, "a version is shown");
    RequireEqual(Field(panel::kFlashSizeField), std::to_string(device.totalFlashBytes),
                 "a size is shown");
    RequireEqual(Field(panel::kSelfTestField), "TEST OK", "the self-tests are shown");
    RequireEqual(Field(panel::kSerialNumberField),
                 m_device->IsNetworked() ? device.network.macAddress : "4711", "a number is shown");
    Require(RowCount() == static_cast<int>(device.files.size()), "the files are listed");
    for (std::size_t file = 0; file < device.files.size(); ++file) {
        RequireEqual(Row(static_cast<int>(file)).front(), device.files[file].name, "in order");
    }
    Require(IsEnabled(panel::kFileList), "the device can be worked on");
    RequireEqual(State().installedPackageVersion, "002.005.013", "the package is known");
}

void CSession::RequireReport() {
    m_hasReported = false;
    PressButton(panel::kReportButton);
    Require(m_hasReported, "a report is written");
}

void CSession::RequireDeletion() {
    for (int row = 0; row < RowCount(); ++row) {
        View().SelectRow(panel::kFileList, row, row != 1);
    }
    PressButton(panel::kDeleteButton);
    RequireSound();
    Require(m_device->Files()->size() == 1 && RowCount() == 1, "what is selected is deleted");
    RequireEqual(Row(0).front(), "beta.fia", "what is not selected stays");
}

}
