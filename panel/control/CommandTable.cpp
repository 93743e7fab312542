#include "panel/control/CommandTable.h"

#include "panel/control/KRX8Maintenance.h"
#include "panel/control/PanelTemplate.h"

#include <algorithm>
#include <iterator>

namespace panel {

namespace {

struct Command {
    ControlId source;
    PanelEvent event;
    void (CKRX8Maintenance::*handler)(const Notification&);
};

constexpr Command kCommandTable[] = {
    {kNoControl, PanelEvent::Created, &CKRX8Maintenance::OnViewCreated},
    {kNoControl, PanelEvent::Resized, &CKRX8Maintenance::OnViewResized},
    {kNoControl, PanelEvent::HelpRequested, &CKRX8Maintenance::OnHelpRequest},
    {kHelpButton, PanelEvent::ButtonPressed, &CKRX8Maintenance::OnHelpButton},
    {kDetailsButton, PanelEvent::ButtonPressed, &CKRX8Maintenance::OnDetails},
    {kUpdateButton, PanelEvent::ButtonPressed, &CKRX8Maintenance::OnUpdate},
    {kDeleteButton, PanelEvent::ButtonPressed, &CKRX8Maintenance::OnDelete},
    {kFileList, PanelEvent::ListRightClicked, &CKRX8Maintenance::OnFileListRightClick},
    {kFileList, PanelEvent::ListKeyPressed, &CKRX8Maintenance::OnFileListKey},
    {kReportButton, PanelEvent::ButtonPressed, &CKRX8Maintenance::OnReport},
    {kResetButton, PanelEvent::ButtonPressed, &CKRX8Maintenance::OnReset},
    {kCloseButton, PanelEvent::ButtonPressed, &CKRX8Maintenance::OnClose},
    {kNetworkButton, PanelEvent::ButtonPressed, &CKRX8Maintenance::OnNetworkConfiguration},
};

}

void Dispatch(CKRX8Maintenance& panel, const Notification& notification) {
    const auto* command =
        std::find_if(std::begin(kCommandTable), std::end(kCommandTable), [&](const Command& row) {
            return row.source == notification.source && row.event == notification.event;
        });
    if (command != std::end(kCommandTable)) {
        (panel.*command->handler)(notification);
    }
}

}
