#include "tests/frontend/conformance/RecordingHandler.h"

namespace conformance {

namespace {

// Works on a copy: the handler may be told to let go of what it is running.
template <class Function, class... Arguments>
void Run(const Function function, Arguments&&... arguments) {
    if (function)
        function(arguments...);
}

}

void CRecordingHandler::OnInit(panel::IView& view) {
    events.push_back("init");
    Run(onInit, view);
}

void CRecordingHandler::OnCommand(panel::ControlId id) {
    events.push_back("command " + std::to_string(id));
    Run(onCommand, id);
}

void CRecordingHandler::OnResized(panel::Size size) {
    events.push_back("resized " + std::to_string(size.width) + "x" + std::to_string(size.height));
}

void CRecordingHandler::OnListKeyDown(panel::ControlId list, std::uint16_t virtualKey) {
    events.push_back("key " + std::to_string(virtualKey) + " in " + std::to_string(list));
    Run(onListKeyDown, list, virtualKey);
}

void CRecordingHandler::OnListRightClick(panel::ControlId list, panel::Point screen) {
    events.push_back("right click on " + std::to_string(list));
    rightClicks.push_back(screen);
    Run(onListRightClick, list);
}

void CRecordingHandler::OnHelp(std::uint32_t context) {
    events.push_back("help " + std::to_string(context));
    Run(onHelp);
}

}
