#include "frontend/qt/QtPanel.h"

#include "frontend/qt/QtToolkit.h"
#include "panel/control/KRX8Maintenance.h"

namespace qt {

std::shared_ptr<contract::IPanel> CreateQtPanel() {
    return panel::CKRX8Maintenance::Create(std::make_unique<CQtToolkit>());
}

}
