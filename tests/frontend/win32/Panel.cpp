#include "tests/frontend/win32/Panel.h"

#include "frontend/win32/Win32Toolkit.h"
#include "panel/control/KRX8Maintenance.h"

namespace win32tests {

std::shared_ptr<contract::IPanel> MakePanel() {
    return panel::CKRX8Maintenance::Create(std::make_unique<win32::CWin32Toolkit>());
}

}
