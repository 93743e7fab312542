#pragma once

#include "panel/control/DialogHandler.h"
#include "panel/control/PanelState.h"

#include <cstdint>

namespace panel {

class CHelp;

/// What the user confirmed in the network configuration dialog.
struct NetworkChoice {
    NetworkValues values;
    bool formatInternalFlash = false;
    bool formatPcCard = false;

    bool FormatsAny() const { return formatInternalFlash || formatPcCard; }
};

/// The network configuration dialog, on a copy of the values. Lives for one showing. User-interface
/// thread only.
class CKRX10Conf final : public IDialogHandler {
public:
    CKRX10Conf(const NetworkValues& values, CHelp& help) : m_choice{values}, m_help(help) {}

    /// The user's choice once the dialog has been closed by OK; the values given before.
    const NetworkChoice& Choice() const { return m_choice; }

    void OnInit(IView& view) override;
    /// With DHCP the addresses are the network's affair, so their fields are disabled and left out
    /// of the choice. The choice is not checked otherwise: the device knows its network best.
    void OnCommand(ControlId id) override;
    void OnHelp(std::uint32_t context) override;

private:
    void EnableAddresses(bool enable);
    void TakeChoice();

    NetworkChoice m_choice;
    CHelp& m_help;
    IView* m_view = nullptr;
};

}
