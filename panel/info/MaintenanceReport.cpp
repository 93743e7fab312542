#include "panel/info/MaintenanceReport.h"

#include "contract/device/Krx20SwInfo.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/SoftwareInfo.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/PanelTemplate.h"
#include "panel/control/PanelView.h"
#include "panel/control/StringTable.h"
#include "panel/control/Utf8.h"
#include "panel/device/DeviceConnection.h"
#include "panel/info/ReportFileWriter.h"

#include <charconv>
#include <span>
#include <string>

namespace panel {

using contract::IKrx20SwInfo;
using contract::ISoftwareInfo;
using contract::Status;

namespace {

constexpr std::size_t kLongestVersion = 80;
constexpr std::uint32_t kTypeInformationIndex = 1;

using Record = MaintenanceReportRecord;

struct FieldText {
    ControlId field;
    std::string Record::*value;
    std::size_t longest;
};

constexpr FieldText kFieldTexts[] = {
    {kSerialNumberField, &Record::serialNumber, 19},
    {kBootSwField, &Record::bootSwVersion, 79},
    {kApplicationSwField, &Record::applicationSwVersion, 79},
    {kFpgaField, &Record::fpgaCodeVersion, 79},
    {kHardwareField, &Record::hardwareVersion, 79},
};

/// The device objects of one report.
struct Device {
    std::shared_ptr<ISoftwareInfo> software = {};
    std::shared_ptr<IKrx20SwInfo> krx20 = {};
};

/// One call, and where its version goes.
struct Step {
    const char* failureText;
    Status (*call)(Device&, std::string& version);
    std::string Record::*value = nullptr;
};

template <auto read>
Status ReadSoftware(Device& device, std::string& version) {
    return Call(device.software, read, version);
}

template <auto read>
Status ReadKrx20(Device& device, std::string& version) {
    return Call(device.krx20, read, version);
}

constexpr Step kKrx8Steps[] = {
    {"Security Software version retrieving failed",
     ReadSoftware<&ISoftwareInfo::GetSecuritySwVersion>, &Record::securitySwVersion},
};

constexpr Step kKrx10Steps[] = {
    {"FPGA driver version retrieving failed", ReadSoftware<&ISoftwareInfo::GetFpgaDriverVersion>,
     &Record::fpgaDriverVersion},
    {"MMCR driver version retrieving failed", ReadSoftware<&ISoftwareInfo::GetMmcrDriverVersion>,
     &Record::mmcrDriverVersion},
    {"USB Device Function driver version retrieving failed",
     ReadSoftware<&ISoftwareInfo::GetUsbDeviceFunctionDriverVersion>,
     &Record::usbDeviceFunctionDriverVersion},
    {"USB Host Controller driver version retrieving failed",
     ReadSoftware<&ISoftwareInfo::GetUsbHostControllerDriverVersion>,
     &Record::usbHostControllerDriverVersion},
    // The MMCR driver's version once more: reports have always shown it in this line too, and those
    // who compare reports rely on it.
    {"ZTWCDC driver version retrieving failed", ReadSoftware<&ISoftwareInfo::GetMmcrDriverVersion>,
     &Record::ztwcdcDriverVersion},
};

constexpr Step kKrx20Steps[] = {
    {"IKrx20SwInfo instance query failed",
     [](Device& device, std::string&) {
         return Query(device.software, &ISoftwareInfo::QueryKrx20SwInfo, device.krx20);
     }},
    {"Type Info retrieving failed",
     [](Device& device, std::string&) {
         std::shared_ptr<contract::ITypeInformation> information;
         return Obtain(device.krx20, &IKrx20SwInfo::GetTypeInfo, kTypeInformationIndex,
                       contract::kUserDefaultLocale, information);
     }},
    {"Boot Loader version retrieving failed", ReadKrx20<&IKrx20SwInfo::GetBootLoaderVersion>,
     &Record::bootLoaderVersion},
    {"Service Mode FPGA code version retrieving failed",
     ReadKrx20<&IKrx20SwInfo::GetServiceFpgaVersion>, &Record::serviceFpgaVersion},
};

std::span<const Step> StepsOf(DeviceType type) {
    switch (type) {
    case DeviceType::Krx10:
        return kKrx10Steps;
    case DeviceType::Krx20:
    case DeviceType::Krx21:
        return kKrx20Steps;
    default:
        return kKrx8Steps;
    }
}

/// 0 when the text holds no number.
std::uint32_t ToNumber(const std::string& text) {
    std::uint32_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

}

void CMaintenanceReport::WriteMaintenanceReport() {
    const BusyCursor busy(m_services.toolkit);
    MaintenanceReportRecord record;
    ReadFields(record);
    if (!ReadDevice(record)) {
        return;
    }
    const ReportKind kind = ReportKindOf(m_services.state.deviceType);
    const int result =
        ReportFileWriter(m_services).Write(record, kind.fileName, LoadPanelString(kind.header));
    if (result == ReportFileWriter::kCannotOpen) {
        ShowFailure(LoadPanelString(StringId::ReportFailed), contract::kSuccess);
    }
}

void CMaintenanceReport::ReadFields(MaintenanceReportRecord& record) const {
    const CPanelView& view = m_services.view;
    for (const FieldText& text : kFieldTexts) {
        record.*text.value = CutToBytes(view->GetText(view[text.field]), text.longest);
    }
    record.flashSizeBytes = ToNumber(view->GetText(kFlashSizeField));
    record.ramSizeBytes = ToNumber(view->GetText(kRamSizeField));
}

bool CMaintenanceReport::ReadDevice(MaintenanceReportRecord& record) const {
    Device device;
    Status status = Obtain(m_services.device.Control(),
                           &contract::IProgrammingDeviceControl::GetSoftwareInfo, device.software);
    if (status.IsFailure()) {
        ShowFailure("Software Info request failed", status);
        return false;
    }
    for (const Step& step : StepsOf(m_services.state.deviceType)) {
        std::string version;
        status = step.call(device, version);
        if (status.IsFailure()) {
            ShowFailure(step.failureText, status);
            return false;
        }
        if (step.value) {
            record.*step.value = CutToBytes(version, kLongestVersion);
        }
    }
    return true;
}

void CMaintenanceReport::ShowFailure(std::string_view text, Status status) const {
    m_services.output.ReportError(text, LoadPanelString(StringId::GenerateReport), status);
}

}
