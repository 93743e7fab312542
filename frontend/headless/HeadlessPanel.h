#pragma once

#include "contract/panel/Panel.h"
#include "frontend/headless/HeadlessDesktop.h"

#include <memory>

namespace headless {

/// Makes a maintenance panel without a screen. What it shows is found on `desktop`, which outlives
/// it; none given: on one of its own that nobody looks at.
std::shared_ptr<contract::IPanel>
CreateHeadlessPanel(std::shared_ptr<HeadlessDesktop> desktop = nullptr);

}
