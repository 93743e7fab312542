#pragma once

#include "contract/panel/Panel.h"

#include <memory>

namespace workstation {

/// Makes the panel that the workstation embeds. Its native parent is a QWidget*.
std::shared_ptr<contract::IPanel> CreatePanel();

}
