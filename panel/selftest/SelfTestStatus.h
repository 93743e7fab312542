#pragma once

#include "contract/Status.h"
#include "panel/control/PanelServices.h"

#include <memory>

namespace contract {
class ISelfTestResults;
}

namespace panel {

class CHelp;

/// Reads and presents the results of the start-up self-tests. User-interface thread only.
class CSelfTestStatus {
public:
    CSelfTestStatus(PanelServices& services, CHelp& help) : m_services(services), m_help(help) {}

    /// Whether every test has passed. Results that cannot be read are reported and count as not
    /// passed, so that the user is offered a look at them.
    bool QuerySelfTestStatus();

    /// The Details command: reads the results and shows them in their dialog.
    void ShowDetails();

private:
    /// Reads the results with refreshes held back; a failure has been reported.
    bool ObtainResults(std::shared_ptr<contract::ISelfTestResults>& results);
    void ReportFailure(contract::Status status);

    PanelServices& m_services;
    CHelp& m_help;
};

}
