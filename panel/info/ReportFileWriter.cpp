#include "panel/info/ReportFileWriter.h"

#include "contract/ErrorInfo.h"
#include "panel/control/FileDialog.h"
#include "panel/control/OutputArea.h"
#include "panel/control/StringTable.h"
#include "panel/control/Utf8.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace panel {

namespace {

constexpr std::size_t kLongestFileName = 260;
constexpr std::size_t kLongestMessage = 300;

std::filesystem::path ToPath(const std::string& text) {
    return std::u8string(text.begin(), text.end());
}

std::string CurrentFolder() {
    std::error_code error;
    const std::u8string folder = std::filesystem::current_path(error).u8string();
    return {folder.begin(), folder.end()};
}

}

int ReportFileWriter::Write(const MaintenanceReportRecord& record,
                            const std::string& defaultFileName, std::string_view header) {
    const LocalTime now = m_services.toolkit.GetLocalTime();
    const FileOutcome outcome = m_services.toolkit.SaveFile(
        {.title = "File and folder where the report will be saved",
         .filters = {{"Text documents (*.txt)", "*.txt"}, {"All files", "*.*"}},
         .fileName = std::string(CutToBytes(defaultFileName, kLongestFileName)),
         .startFolder = CurrentFolder(),
         .defaultExtension = "txt"});
    if (outcome.kind != FileOutcome::Kind::Accepted) {
        return kWrittenOrCancelled;
    }
    // Not in text mode: lines end in CR LF on every platform.
    std::ofstream file(ToPath(outcome.path), std::ios::binary | std::ios::trunc);
    if (!file) {
        return kCannotOpen;
    }
    file << ReportText(record, header, now);
    file.close();
    TellWhere(outcome.path);
    return kWrittenOrCancelled;
}

void ReportFileWriter::TellWhere(const std::string& path) {
    const std::string text = LoadPanelString(StringId::ReportIsSaved) + path;
    m_services.output.ReportError(CutToUtf16Units(text, kLongestMessage),
                                  LoadPanelString(StringId::GenerateReport), contract::kSuccess,
                                  kInformationStyle);
}

}
