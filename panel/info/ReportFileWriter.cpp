#include "panel/info/ReportFileWriter.h"

#include "panel/control/FileDialog.h"
#include "panel/control/OutputArea.h"
#include "panel/control/StringTable.h"
#include "panel/control/Utf8.h"

namespace panel {

namespace {

constexpr std::size_t kLongestFileName = 260;
constexpr std::size_t kLongestMessage = 300;

}

int ReportFileWriter::Write(const MaintenanceReportRecord& record,
                            const std::string& defaultFileName, std::string_view header) {
    const LocalTime now = m_services.toolkit.GetLocalTime();
    const FileOutcome outcome = m_services.toolkit.SaveFile(
        {.title = "File and folder where the report will be saved",
         .filters = {{"Text documents (*.txt)", "*.txt"}, {"All files", "*.*"}},
         .fileName = std::string(CutToBytes(defaultFileName, kLongestFileName)),
         .startFolder = m_services.toolkit.GetCurrentFolder(),
         .defaultExtension = "txt"});
    if (outcome.kind != FileOutcome::Kind::Accepted) {
        return kWrittenOrCancelled;
    }
    if (!m_services.toolkit.WriteFile(outcome.path, ReportText(record, header, now))) {
        return kCannotOpen;
    }
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
