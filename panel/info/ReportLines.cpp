#include "panel/info/ReportLines.h"

#include "panel/control/Format.h"
#include "panel/control/Utf8.h"

namespace panel {

namespace {

constexpr std::size_t kLongestHeader = 79;
constexpr std::size_t kLongestTime = 19;
constexpr unsigned kBytesToMebibytes = 20;

using Record = MaintenanceReportRecord;

struct Line {
    const char* label;
    std::string Record::*value;
    bool isAlwaysWritten;
};

constexpr Line kLines[] = {
    {"SERIAL NUMBER", &Record::serialNumber, true},
    {"BOOT SW VER", &Record::bootSwVersion, true},
    {"APPLICATION SW VER", &Record::applicationSwVersion, true},
    {"FPGA CODE VER", &Record::fpgaCodeVersion, true},
    {"FPGA DRIVER VER", &Record::fpgaDriverVersion, false},
    {"MMCR DRIVER VER", &Record::mmcrDriverVersion, false},
    {"USB DF DRIVER VER", &Record::usbDeviceFunctionDriverVersion, false},
    {"USB HOST DRIVER VER", &Record::usbHostControllerDriverVersion, false},
    {"ZTWCDC DRIVER VER", &Record::ztwcdcDriverVersion, false},
    {"SERVICE FPGA VER", &Record::serviceFpgaVersion, false},
    {"BOOT LOADER VER", &Record::bootLoaderVersion, false},
    {"SECURITY SW VER", &Record::securitySwVersion, false},
    {"HW VERSION", &Record::hardwareVersion, true},
};

std::string ShortOrNothing(const std::string& text) {
    return CutToUtf16Units(text, kLongestTime) == text ? text : std::string();
}

std::string SizeLine(const char* label, std::uint32_t sizeBytes) {
    return Format("%s SIZE (MB) : %u\r\n", label, unsigned{sizeBytes >> kBytesToMebibytes});
}

}

ReportKind ReportKindOf(DeviceType type) {
    switch (type) {
    case DeviceType::Krx10:
        return {StringId::Krx10ReportHeader, "krx10maintenance.txt"};
    case DeviceType::Krx20:
    case DeviceType::Krx21:
        return {StringId::Krx20ReportHeader, "krx20maintenance.txt"};
    default:
        return {StringId::Krx8ReportHeader, "krx8maintenance.txt"};
    }
}

std::string ReportText(const MaintenanceReportRecord& record, std::string_view header,
                       const LocalTime& now) {
    std::string text = std::string(CutToBytes(header, kLongestHeader)) + "\r\n";
    text += "DATE: " + ShortOrNothing(now.date) + "\tTIME: " + ShortOrNothing(now.time) + "\r\n";
    for (const Line& line : kLines) {
        const std::string& value = record.*line.value;
        if (line.isAlwaysWritten || !value.empty()) {
            text += std::string(line.label) + " : " + value + "\r\n";
        }
    }
    return text + SizeLine("FLASH", record.flashSizeBytes) + SizeLine("SRAM", record.ramSizeBytes);
}

}
