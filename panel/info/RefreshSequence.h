#pragma once

#include "panel/control/PanelServices.h"

namespace panel {

class CDeviceControls;
class CDeviceInformation;
class CFileListing;
class CSelfTestStatus;
class CUpdateCheck;

/// Rebuilds the panel's whole picture of the device. User-interface thread only.
class CRefreshSequence {
public:
    CRefreshSequence(PanelServices& services, CSelfTestStatus& selfTests,
                     CDeviceInformation& information, CFileListing& files,
                     CUpdateCheck& updateCheck, CDeviceControls& controls);

    /// Clears the information group and the file list, reads everything again and enables the
    /// device controls. Nothing at all, not even the cursor, while refreshing is not allowed. Each
    /// part reports its own failures and the others still run. May run inside itself.
    void RefreshDeviceInfo();

private:
    void ClearFields();
    void ShowSelfTestStatus();
    void AskForModeIfUnknown();
    void WarnIfNotNormal();

    PanelServices& m_services;
    CSelfTestStatus& m_selfTests;
    CDeviceInformation& m_information;
    CFileListing& m_files;
    CUpdateCheck& m_updateCheck;
    CDeviceControls& m_controls;
};

}
