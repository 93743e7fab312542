#pragma once

#include "panel/control/PanelServices.h"

namespace panel {

class CHelp;
class CIniUpdate;
class CRefreshSequence;
class CRegUpdate;

/// The refresh's look for a newer update package on this machine. User-interface thread only.
class CUpdateCheck {
public:
    CUpdateCheck(PanelServices& services, CRegUpdate& settings, CIniUpdate& update, CHelp& help)
        : m_services(services), m_settings(settings), m_update(update), m_help(help) {}

    /// Logs the version that the device carries, if it names one, and offers a newer package, or
    /// any to a device that names none. A user who accepts gets the update and then a whole new
    /// refresh, whatever came of it. Nothing is remembered: who declines is asked again next time.
    void CheckForUpdatePackage(CRefreshSequence& refresh);

private:
    bool IsAccepted();

    PanelServices& m_services;
    CRegUpdate& m_settings;
    CIniUpdate& m_update;
    CHelp& m_help;
};

}
