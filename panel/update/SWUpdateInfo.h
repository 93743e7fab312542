#pragma once

#include "panel/control/DialogHandler.h"

#include <string>
#include <string_view>

namespace panel {

class CHelp;
class IToolkit;

/// The dialog that offers a newer update package. Lives for one showing. User-interface thread
/// only.
class CSWUpdateInfo final : public IDialogHandler {
public:
    /// Versions are cut to 80 characters; an empty device version says that the device names none.
    CSWUpdateInfo(IToolkit& toolkit, CHelp& help, std::string_view packageVersion,
                  std::string_view deviceVersion);

    /// Shows the dialog and returns the button that closed it: kYesButton, kNoButton, or
    /// kCancelButton for Escape and the close box, and also when it could not be shown.
    ControlId Show();

    void OnInit(IView& view) override;
    void OnCommand(ControlId id) override;
    void OnHelp(std::uint32_t context) override;

private:
    IToolkit& m_toolkit;
    CHelp& m_help;
    std::string m_packageVersion;
    std::string m_deviceVersion;
    IView* m_view = nullptr;
};

}
