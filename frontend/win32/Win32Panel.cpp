#include "frontend/win32/Win32Panel.h"

#include "frontend/win32/Win32Toolkit.h"
#include "panel/control/KRX8Maintenance.h"

namespace win32 {

std::shared_ptr<contract::IPanel> CreateWin32Panel() {
    return panel::CKRX8Maintenance::Create(std::make_unique<CWin32Toolkit>());
}

}
