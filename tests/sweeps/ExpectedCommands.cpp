#include "tests/sweeps/ExpectedCommands.h"

#include "panel/control/PanelTemplate.h"
#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/ExpectedRefresh.h"
#include "tests/sweeps/ExpectedScopes.h"
#include "tests/sweeps/ExpectedSelfTests.h"
#include "tests/sweeps/ExpectedUpdate.h"

#include <algorithm>
#include <iterator>

namespace sweeps {

namespace {

void ExpectReset(CExpectation& panel) {
    const CExpectedCursor cursor(panel);
    panel.kept.refreshAllowed = false;
    const CExpectedPolling polling(panel, CExpectedPolling::Suspended::AtOnce);
    const bool isDone = panel.Call("ProgrammingDeviceControl.RequestMode",
                                   [&] { panel.NoteWrite("RequestMode(4)"); });
    panel.kept.refreshAllowed = true;
    if (isDone) {
        ExpectRefresh(panel);
    } else {
        panel.Report("Resetting prommer.", "Prommer Maintenance");
    }
}

/// A failure is passed over in silence.
void ExpectClose(CExpectation& panel) {
    panel.CallInTurn({"Context.QueryHostViewControl", "HostViewControl.ClosePanel"});
}

struct Command {
    panel::ControlId button;
    void (*expect)(CExpectation&);
};

constexpr Command kCommands[] = {
    {panel::kDetailsButton, ExpectDetails}, {panel::kUpdateButton, ExpectUpdate},
    {panel::kDeleteButton, ExpectDeletion}, {panel::kReportButton, ExpectReport},
    {panel::kResetButton, ExpectReset},     {panel::kNetworkButton, ExpectNetwork},
    {panel::kCloseButton, ExpectClose},
};

}

void ExpectCommand(CExpectation& panel, panel::ControlId button) {
    const auto* command = std::ranges::find(kCommands, button, &Command::button);
    if (command != std::end(kCommands)) {
        command->expect(panel);
    }
}

void ExpectKey(CExpectation& panel, std::uint16_t virtualKey) {
    constexpr std::uint16_t kDelete = 0x2E;
    constexpr std::uint16_t kContextMenu = 0x5D;
    if (virtualKey == kDelete) {
        ExpectDeletion(panel);
    } else if (virtualKey == kContextMenu) {
        ExpectFileMenu(panel);
    }
}

}
