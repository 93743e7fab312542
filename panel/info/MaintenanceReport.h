#pragma once

#include "contract/Status.h"
#include "panel/control/PanelServices.h"
#include "panel/info/ReportLines.h"

#include <string_view>

namespace panel {

/// The Report command. User-interface thread only.
class CMaintenanceReport {
public:
    explicit CMaintenanceReport(PanelServices& services) : m_services(services) {}

    /// Writes a text file about the device, of what the information fields show and of versions
    /// that only the device can tell. The first failing call is reported and ends the command
    /// before a file is asked for.
    void WriteMaintenanceReport();

private:
    void ReadFields(MaintenanceReportRecord& record) const;
    bool ReadDevice(MaintenanceReportRecord& record) const;
    void ShowFailure(std::string_view text, contract::Status status) const;

    PanelServices& m_services;
};

}
