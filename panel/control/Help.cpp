#include "panel/control/Help.h"

#include "panel/control/HelpTopics.h"

namespace panel {

namespace {
constexpr const char* kHelpFile = "cmn_krx8maintenanceui.hlp";
}

void CHelp::ShowHelp() { Open(kOverviewTopic, Owner::Panel); }

void CHelp::ShowHelp(std::uint32_t context) {
    if (context == 0) {
        ShowHelp();
    } else {
        Open(context, Owner::ActiveWindow);
    }
}

void CHelp::Open(std::uint32_t context, Owner owner) {
    // Joined as UTF-8; every system that we run on takes this separator.
    m_toolkit.ShowHelp(m_toolkit.GetComponentFolder() + "/" + kHelpFile, context, owner);
}

}
