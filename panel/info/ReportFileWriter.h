#pragma once

#include "panel/control/PanelServices.h"
#include "panel/info/ReportLines.h"

#include <string>
#include <string_view>

namespace panel {

/// Asks for the file of a maintenance report and writes it. Made for one report. User-interface
/// thread only.
class ReportFileWriter {
public:
    static constexpr int kWrittenOrCancelled = 0;
    static constexpr int kCannotOpen = 1;

    explicit ReportFileWriter(PanelServices& services) : m_services(services) {}

    /// Lets the user name the file, `defaultFileName` proposed, writes the report, and says where
    /// it is. A file that is there already is replaced without a question; one that cannot be
    /// opened stays as it is. Errors while writing are ignored.
    int Write(const MaintenanceReportRecord& record, const std::string& defaultFileName,
              std::string_view header);

private:
    void TellWhere(const std::string& path);

    PanelServices& m_services;
};

}
