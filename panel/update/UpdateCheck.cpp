#include "panel/update/UpdateCheck.h"

#include "panel/control/OutputArea.h"
#include "panel/control/PanelState.h"
#include "panel/control/Utf8.h"
#include "panel/control/VersionNumber.h"
#include "panel/info/RefreshSequence.h"
#include "panel/update/IniUpdate.h"
#include "panel/update/RegUpdate.h"
#include "panel/update/SWUpdateInfo.h"
#include "panel/update/UpdateDecisions.h"

namespace panel {

namespace {

constexpr std::size_t kLongestVersion = 80;

}

void CUpdateCheck::CheckForUpdatePackage(CRefreshSequence& refresh) {
    if (IsAccepted()) {
        m_update.UpdateFromPackage();
        refresh.RefreshDeviceInfo();
    }
}

bool CUpdateCheck::IsAccepted() {
    const std::string package = NormalizePackageVersion(
        CutToBytes(m_settings.GetRegSzValue(kFlashVersion), kLongestVersion));
    const std::string installed = m_services.state.installedPackageVersion;
    if (!installed.empty()) {
        m_services.output.AppendStatusLine(
            "Currently installed Flash Update Package in Programming Device is: " + installed);
    }
    return IsUpdateOffered(package, installed) &&
           CSWUpdateInfo(m_services.toolkit, m_help, package, installed).Show() == kYesButton;
}

}
