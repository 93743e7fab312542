#pragma once

#include "contract/panel/Panel.h"

#include <memory>

namespace workstation {

/// Makes the panel that the workstation embeds, of the component that the machine's catalogue
/// names. Its native parent is a QWidget*. Throws component::ComponentUnavailable, whose text says
/// what to do, when there is no such component.
std::shared_ptr<contract::IPanel> CreatePanel();

}
