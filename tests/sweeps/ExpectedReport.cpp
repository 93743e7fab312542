#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/ExpectedCommands.h"
#include "tests/sweeps/ExpectedFileDialogs.h"
#include "tests/sweeps/ExpectedScopes.h"
#include "tests/sweeps/Files.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <span>
#include <string>

namespace sweeps {

namespace {

using simulator::SoftwareVersions;

constexpr const char* kCaption = "Generate info report.";

/// One call, and the line that its version fills.
struct Step {
    const char* operation;
    const char* failureText;
    const char* label = nullptr;
    std::string SoftwareVersions::*version = nullptr;
};

constexpr Step kKrx8[] = {
    {"SoftwareInfo.GetSecuritySwVersion", "Security Software version retrieving failed",
     "SECURITY SW VER", &SoftwareVersions::security},
};

constexpr Step kKrx10[] = {
    {"SoftwareInfo.GetFpgaDriverVersion", "FPGA driver version retrieving failed",
     "FPGA DRIVER VER", &SoftwareVersions::fpgaDriver},
    {"SoftwareInfo.GetMmcrDriverVersion", "MMCR driver version retrieving failed",
     "MMCR DRIVER VER", &SoftwareVersions::mmcrDriver},
    {"SoftwareInfo.GetUsbDeviceFunctionDriverVersion",
     "USB Device Function driver version retrieving failed", "USB DF DRIVER VER",
     &SoftwareVersions::usbDeviceFunctionDriver},
    {"SoftwareInfo.GetUsbHostControllerDriverVersion",
     "USB Host Controller driver version retrieving failed", "USB HOST DRIVER VER",
     &SoftwareVersions::usbHostControllerDriver},
    {"SoftwareInfo.GetMmcrDriverVersion", "ZTWCDC driver version retrieving failed",
     "ZTWCDC DRIVER VER", &SoftwareVersions::mmcrDriver},
};

constexpr Step kKrx20[] = {
    {"SoftwareInfo.QueryKrx20SwInfo", "IKrx20SwInfo instance query failed"},
    {"Krx20SwInfo.GetTypeInfo", "Type Info retrieving failed"},
    {"Krx20SwInfo.GetBootLoaderVersion", "Boot Loader version retrieving failed", "BOOT LOADER VER",
     &SoftwareVersions::bootLoader},
    {"Krx20SwInfo.GetServiceFpgaVersion", "Service Mode FPGA code version retrieving failed",
     "SERVICE FPGA VER", &SoftwareVersions::serviceFpga},
};

/// The lines of versions that are asked for, in the order of the report.
constexpr const char* kVersionLines[] = {
    "FPGA DRIVER VER",   "MMCR DRIVER VER",  "USB DF DRIVER VER", "USB HOST DRIVER VER",
    "ZTWCDC DRIVER VER", "SERVICE FPGA VER", "BOOT LOADER VER",   "SECURITY SW VER",
};

struct Kind {
    std::span<const Step> steps;
    const char* fileName;
    const char* header;
};

Kind KindOf(std::int32_t type) {
    switch (type) {
    case 3:
        return {kKrx10, "krx10maintenance.txt", "KRX-10 MAINTENANCE INFO"};
    case 4:
    case 5:
        return {kKrx20, "krx20maintenance.txt", "KRX-20 MAINTENANCE INFO"};
    default:
        return {kKrx8, "krx8maintenance.txt", "KRX-8 / KRX-8C MAINTENANCE INFO"};
    }
}

/// The controls that the report is taken from.
class CFields {
public:
    explicit CFields(CExpectation& panel) {
        // The size fields can be read of an uninitialised view too, but such a one has no commands.
        if (const Picture* picture = panel.List()) {
            m_texts = picture->texts;
        }
    }

    std::string Line(const char* label, panel::ControlId id) {
        return std::string(label) + " : " + m_texts[id] + "\r\n";
    }
    std::string SizeLine(const char* label, panel::ControlId id) {
        const unsigned long sizeBytes = std::strtoul(m_texts[id].c_str(), nullptr, 10);
        return std::string(label) + " : " + std::to_string(sizeBytes / (1024 * 1024)) + "\r\n";
    }

private:
    std::map<panel::ControlId, std::string> m_texts;
};

std::string ReportText(const CExpectation& panel, const Kind& kind, CFields fields) {
    std::string text = std::string(kind.header) + "\r\nDATE: 20.11.2026\tTIME: 14:05\r\n" +
                       fields.Line("SERIAL NUMBER", 211) + fields.Line("BOOT SW VER", 217) +
                       fields.Line("APPLICATION SW VER", 219) + fields.Line("FPGA CODE VER", 218);
    for (const std::string line : kVersionLines) {
        for (const Step& step : kind.steps) {
            if (step.label && step.label == line) {
                text += line + " : " + panel.Device().software.*step.version + "\r\n";
            }
        }
    }
    return text + fields.Line("HW VERSION", 212) + fields.SizeLine("FLASH SIZE (MB)", 213) +
           fields.SizeLine("SRAM SIZE (MB)", 215);
}

bool ExpectVersionsRead(CExpectation& panel) {
    if (!panel.Call("ProgrammingDeviceControl.GetSoftwareInfo")) {
        panel.Report("Software Info request failed", kCaption);
        return false;
    }
    for (const Step& step : KindOf(panel.kept.type).steps) {
        if (!panel.Call(step.operation)) {
            panel.Report(step.failureText, kCaption);
            return false;
        }
    }
    return true;
}

}

void ExpectReport(CExpectation& panel) {
    const CExpectedCursor cursor(panel);
    const CFields fields(panel);
    if (!ExpectVersionsRead(panel)) {
        return;
    }
    const Kind kind = KindOf(panel.kept.type);
    const bool isChosen = ExpectFileDialog(
        panel, {.title = "File and folder where the report will be saved",
                .startFolder = std::filesystem::current_path().string(),
                .fileName = kind.fileName,
                .defaultExtension = "txt",
                .filters = {{"Text documents (*.txt)", "*.txt"}, {"All files", "*.*"}},
                .saves = true});
    if (!isChosen) {
        return;
    }
    if (panel.UserAnswers().file != FileChoice::Taken) {
        panel.Tell("Error in printing report to file.", kCaption, 0x10);
        return;
    }
    panel.NoteReport(ReportText(panel, kind, fields));
    panel.Tell("Information about the Programming Device is saved.\n\nThe full path to the report "
               "file is:\n" +
                   ReportPath(),
               kCaption, 0x40);
}

}
