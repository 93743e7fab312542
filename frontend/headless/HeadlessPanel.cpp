#include "frontend/headless/HeadlessPanel.h"

#include "frontend/headless/HeadlessToolkit.h"
#include "panel/control/KRX8Maintenance.h"

#include <utility>

namespace headless {

std::shared_ptr<contract::IPanel> CreateHeadlessPanel(std::shared_ptr<HeadlessDesktop> desktop) {
    if (!desktop) {
        desktop = std::make_shared<HeadlessDesktop>();
    }
    return panel::CKRX8Maintenance::Create(std::make_unique<CHeadlessToolkit>(std::move(desktop)));
}

}
