#pragma once

#include "contract/Status.h"
#include "panel/control/PanelServices.h"

#include <string>

namespace panel {

class CDeviceControls;
class CRefreshSequence;
class CRegUpdate;

/// Updates the device's software from an INI description on this machine, which the device service
/// reads. Device events start no refresh and phones are not polled while it works. User-interface
/// thread only.
class CIniUpdate {
public:
    CIniUpdate(PanelServices& services, CRegUpdate& settings, CDeviceControls& controls)
        : m_services(services), m_settings(settings), m_controls(controls) {}

    /// The Update command: the user chooses the description. A success, also a partial one, is
    /// shown and followed by a refresh; a failure is reported and gives the controls back.
    void UpdateFromChosenFile(CRefreshSequence& refresh);

    /// Updates from the package installed on this machine and shows the outcome; the caller
    /// refreshes. True only for status 0: other successes are told to the user alike, but are not
    /// the whole of it. A description that is missing is the device service's to report.
    bool UpdateFromPackage();

private:
    contract::Status Update(const std::string& path);
    void ShowOutcome(contract::Status status);

    PanelServices& m_services;
    CRegUpdate& m_settings;
    CDeviceControls& m_controls;
};

}
