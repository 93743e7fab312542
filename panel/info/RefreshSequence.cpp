#include "panel/info/RefreshSequence.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/DeviceControls.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceConnection.h"
#include "panel/files/FileListing.h"
#include "panel/info/DeviceInformation.h"
#include "panel/selftest/SelfTestStatus.h"
#include "panel/update/UpdateCheck.h"

namespace panel {

namespace {

constexpr ControlId kTextFields[] = {kSerialNumberField, kHardwareField,      kBootSwField,
                                     kFpgaField,         kApplicationSwField, kIpAddressField};
constexpr ControlId kSizeFields[] = {kFlashSizeField, kFreeFlashField, kRamSizeField,
                                     kFreeRamField};

}

CRefreshSequence::CRefreshSequence(PanelServices& services, CSelfTestStatus& selfTests,
                                   CDeviceInformation& information, CFileListing& files,
                                   CUpdateCheck& updateCheck, CDeviceControls& controls)
    : m_services(services),
      m_selfTests(selfTests),
      m_information(information),
      m_files(files),
      m_updateCheck(updateCheck),
      m_controls(controls) {}

void CRefreshSequence::RefreshDeviceInfo() {
    if (!m_services.state.refreshAllowed) {
        return;
    }
    const BusyCursor busy(m_services.toolkit);
    ClearFields();
    m_files.Clear();
    ShowSelfTestStatus();
    AskForModeIfUnknown();
    m_information.ReadDeviceInformation();
    m_services.state.installedPackageVersion.clear();
    WarnIfNotNormal();
    m_files.UpdateFileListing();
    m_updateCheck.CheckForUpdatePackage(*this);
    m_controls.EnableDeviceControls(true);
}

void CRefreshSequence::ClearFields() {
    CPanelView& view = m_services.view;
    for (const ControlId field : kTextFields) {
        view->SetText(view[field], "");
    }
    for (const ControlId field : kSizeFields) {
        view->SetText(field, "0");
    }
}

void CRefreshSequence::ShowSelfTestStatus() {
    const bool havePassed = m_selfTests.QuerySelfTestStatus();
    CPanelView& view = m_services.view;
    view->SetText(view[kSelfTestField],
                  LoadPanelString(havePassed ? StringId::TestOk : StringId::SomeTestsFailed));
    view->SetEnabled(view[kDetailsButton], !havePassed);
}

void CRefreshSequence::AskForModeIfUnknown() {
    if (m_services.state.deviceMode != DeviceMode::NotYetKnown) {
        return;
    }
    const contract::Status status =
        Call(m_services.device.Control(), &contract::IProgrammingDeviceControl::RequestMode,
             contract::ModeRequest::Report);
    if (status.IsFailure()) {
        m_services.output.ReportError("Programming Device Mode query failed",
                                      LoadPanelString(StringId::PrommerMaintenance), status);
    }
}

void CRefreshSequence::WarnIfNotNormal() {
    // A mode answer that has not arrived yet counts as not Normal: better one warning too many
    // than values taken for true.
    if (m_services.state.deviceMode != DeviceMode::Normal) {
        m_services.output.ShowMessage(LoadPanelString(StringId::NotInNormalMode),
                                      LoadPanelString(StringId::PrommerMaintenance),
                                      contract::kSuccess, "", kWarningStyle);
    }
}

}
