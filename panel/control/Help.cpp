#include "panel/control/Help.h"

#include <filesystem>

namespace panel {

namespace {
constexpr const char* kHelpFile = "cmn_krx8maintenanceui.hlp";
constexpr std::uint32_t kOverview = 1;
}

void CHelp::ShowHelp() { Open(kOverview, Owner::Panel); }

void CHelp::ShowHelp(std::uint32_t context) {
    if (context == 0) {
        ShowHelp();
    } else {
        Open(context, Owner::ActiveWindow);
    }
}

void CHelp::Open(std::uint32_t context, Owner owner) {
    const std::filesystem::path folder = m_toolkit.GetComponentFolder();
    m_toolkit.ShowHelp((folder / kHelpFile).string(), context, owner);
}

}
