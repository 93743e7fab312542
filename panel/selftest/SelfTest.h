#pragma once

#include "contract/Status.h"
#include "contract/device/SelfTestResults.h"
#include "panel/control/DialogHandler.h"
#include "panel/control/PanelServices.h"

#include <memory>

namespace panel {

class CHelp;
class IView;

/// The dialog that shows the start-up self-tests one by one. Lives for one showing; does not own
/// the results. User-interface thread only.
class CSelfTest final : public IDialogHandler {
public:
    CSelfTest(const std::shared_ptr<contract::ISelfTestResults>& results, PanelServices& services,
              CHelp& help);

    /// Fills the list under the wait cursor. A failing query is shown and ends the filling; the
    /// dialog opens all the same with the rows filled so far.
    void OnInit(IView& view) override;
    void OnCommand(ControlId id) override;
    void OnHelp(std::uint32_t context) override;

private:
    contract::Status FillList(IView& view);

    const std::shared_ptr<contract::ISelfTestResults>& m_results;
    PanelServices& m_services;
    CHelp& m_help;
    IView* m_view = nullptr;
};

}
