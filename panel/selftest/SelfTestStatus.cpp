#include "panel/selftest/SelfTestStatus.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/SelfTestResults.h"
#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/OutputArea.h"
#include "panel/control/RefreshInhibition.h"
#include "panel/control/StringTable.h"
#include "panel/device/DeviceConnection.h"
#include "panel/selftest/SelfTest.h"
#include "panel/selftest/SelfTestTable.h"
#include "panel/selftest/SelfTestTemplate.h"

namespace panel {

bool CSelfTestStatus::QuerySelfTestStatus() {
    m_services.output.AppendStatusLine("Querying self-tests results");
    std::shared_ptr<contract::ISelfTestResults> results;
    if (!ObtainResults(results)) {
        return false;
    }
    for (const SelfTestRow& row : SelfTestRows()) {
        std::int32_t code = 0;
        const contract::Status status =
            Call(results, &contract::ISelfTestResults::GetResult, row.test, code);
        if (status.IsFailure()) {
            ReportFailure(status);
            return false;
        }
        if (!DescribeResult(code).hasPassed) {
            return false;
        }
    }
    return true;
}

void CSelfTestStatus::ShowDetails() {
    std::shared_ptr<contract::ISelfTestResults> results;
    if (ObtainResults(results)) {
        CSelfTest dialog(results, m_services, m_help);
        m_services.toolkit.RunDialog(kSelfTestTemplate, dialog, Owner::Panel);
    }
}

bool CSelfTestStatus::ObtainResults(std::shared_ptr<contract::ISelfTestResults>& results) {
    contract::Status status;
    {
        const BusyCursor busy(m_services.toolkit);
        const CRefreshInhibition inhibition(m_services.state);
        status = Obtain(m_services.device.Control(),
                        &contract::IProgrammingDeviceControl::GetSelfTestResults, results);
    }
    if (status.IsFailure()) {
        ReportFailure(status);
    }
    return status.IsSuccess();
}

void CSelfTestStatus::ReportFailure(contract::Status status) {
    m_services.output.ReportError(LoadPanelString(StringId::CannotGetSelfTestResults),
                                  LoadPanelString(StringId::PrommerMaintenance), status);
}

}
