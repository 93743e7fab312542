#pragma once

#include "panel/control/StringTable.h"
#include "panel/control/Toolkit.h"
#include "panel/device/DeviceType.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace panel {

/// What a maintenance report says of a device. Texts are UTF-8 and empty when unknown.
struct MaintenanceReportRecord {
    std::string serialNumber;  ///< at most 19 bytes
    std::string bootSwVersion; ///< at most 79 bytes, as the three that follow
    std::string applicationSwVersion;
    std::string fpgaCodeVersion;
    std::string hardwareVersion;
    std::uint32_t flashSizeBytes = 0;
    std::uint32_t ramSizeBytes = 0;
    std::string securitySwVersion; ///< at most 80 bytes, as those that follow; KRX-8 family
    std::string fpgaDriverVersion; ///< this and the next four: KRX-10
    std::string mmcrDriverVersion;
    std::string usbDeviceFunctionDriverVersion;
    std::string usbHostControllerDriverVersion;
    std::string ztwcdcDriverVersion;
    std::string serviceFpgaVersion; ///< this and the next: KRX-20 and KRX-21
    std::string bootLoaderVersion;
};

/// What a report is headed with, and the file name proposed for it.
struct ReportKind {
    StringId header;
    const char* fileName;
};

/// Of a device type; an unknown device is reported as of the KRX-8 family.
ReportKind ReportKindOf(DeviceType type);

/// The whole text of a report, lines ended by CR LF. Versions that a device does not have take no
/// line. `header` is cut to 79 bytes; a date or time of more than 19 units of UTF-16 is left
/// out.
std::string ReportText(const MaintenanceReportRecord& record, std::string_view header,
                       const LocalTime& now);

}
