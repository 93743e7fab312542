#pragma once

#include "panel/control/DialogHandler.h"

#include <functional>
#include <string>
#include <vector>

namespace conformance {

/// Writes down each notification as one line, then runs what the test wants done inside it.
class CRecordingHandler : public panel::IDialogHandler {
public:
    std::vector<std::string> events;
    std::vector<panel::Point> rightClicks;

    std::function<void(panel::IView&)> onInit;
    std::function<void(panel::ControlId)> onCommand;
    std::function<void(panel::ControlId, std::uint16_t)> onListKeyDown;
    std::function<void(panel::ControlId)> onListRightClick;
    std::function<void()> onHelp;

    void OnInit(panel::IView& view) override;
    void OnCommand(panel::ControlId id) override;
    void OnResized(panel::Size size) override;
    void OnListKeyDown(panel::ControlId list, std::uint16_t virtualKey) override;
    void OnListRightClick(panel::ControlId list, panel::Point screen) override;
    void OnHelp(std::uint32_t context) override;
};

}
