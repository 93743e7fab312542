#pragma once

#include "contract/panel/Panel.h"

#include <memory>

namespace win32tests {

/// A panel with views of the system's controls, as a program makes it that has them linked.
std::shared_ptr<contract::IPanel> MakePanel();

}
