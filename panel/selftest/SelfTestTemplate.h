#pragma once

#include "panel/control/DialogTemplate.h"

namespace panel {

/// The dialog "Startup Self-test statuses" (template 201).
extern const DialogTemplate kSelfTestTemplate;

inline constexpr ControlId kSelfTestList = 236;

}
