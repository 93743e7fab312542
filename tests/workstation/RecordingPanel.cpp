#include "tests/workstation/RecordingPanel.h"

#include "contract/device/HardwareInfo.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/Connection.h"
#include "contract/host/ExtConnectionEvents.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "workstation/EventWatch.h"

using contract::kSuccess;
using contract::Status;

class RecordingPanel::ConnectionSink : public contract::_IExtConnectionEvents {
public:
    explicit ConnectionSink(RecordingPanel& panel) : m_panel(panel) {}

    Status ConnectionStateChanged(Status, std::int32_t state) override {
        return m_panel.Note("state " + std::to_string(state) + ", " + m_panel.DeviceThere());
    }
    Status Event2(std::int32_t, std::int32_t) override { return m_panel.Note("event 2"); }

private:
    RecordingPanel& m_panel;
};

RecordingPanel::~RecordingPanel() {
    if (m_unwatch) {
        m_unwatch();
    }
    static_cast<void>(Note("released"));
}

Status RecordingPanel::SetContextAndRegister(const std::shared_ptr<contract::IContext>&) {
    return Note("SetContextAndRegister");
}

Status RecordingPanel::SetContext(const std::shared_ptr<contract::IContext>&) {
    return Note("SetContext");
}

Status RecordingPanel::CreateView(void*) { return Note("CreateView"); }

void RecordingPanel::Resize(contract::PixelSize size) {
    static_cast<void>(
        Note("Resize " + std::to_string(size.width) + " x " + std::to_string(size.height)));
}

void RecordingPanel::DestroyView() { static_cast<void>(Note("DestroyView")); }

Status
RecordingPanel::SetSubsystemAccess(const std::shared_ptr<contract::ISubsystemAccess>& access) {
    m_access = access;
    return Note("SetSubsystemAccess, " + DeviceThere());
}

Status RecordingPanel::SetConnection(const std::shared_ptr<contract::IConnection>& connection) {
    m_unwatch = workstation::Watch<contract::_IExtConnectionEvents>(
        *connection, std::make_shared<ConnectionSink>(*this));
    return Note("SetConnection");
}

Status RecordingPanel::Go() { return Note("Go"); }

Status RecordingPanel::Note(const std::string& call) {
    m_calls.push_back(call);
    return kSuccess;
}

std::string RecordingPanel::DeviceThere() const {
    std::shared_ptr<contract::ISubsystem> subsystem;
    std::shared_ptr<contract::IProgrammingDeviceSubsystem> devices;
    std::shared_ptr<contract::IProgrammingDeviceControl> control;
    std::shared_ptr<contract::IHardwareInfo> hardware;
    std::int32_t serialNumber = 0;
    if (m_access->GetSubsystem(contract::kProgrammingDeviceSubsystem, subsystem).IsFailure() ||
        subsystem->QueryProgrammingDeviceSubsystem(devices).IsFailure() ||
        devices->get_ProgrammingDeviceControl(control).IsFailure() ||
        control->GetHardwareInfo(hardware).IsFailure() ||
        hardware->GetSerialNumber(serialNumber).IsFailure()) {
        return "no device";
    }
    return "device " + std::to_string(serialNumber);
}
