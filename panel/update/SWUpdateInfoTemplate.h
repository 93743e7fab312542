#pragma once

#include "panel/control/DialogTemplate.h"

namespace panel {

/// The offer of a newer update package (template 202).
extern const DialogTemplate kSWUpdateInfoTemplate;

inline constexpr ControlId kUpdateInfoMessage = 239;
inline constexpr ControlId kPackageVersionLabel = 240;
inline constexpr ControlId kPackageVersionText = 241;
inline constexpr ControlId kDeviceVersionLabel = 242;
inline constexpr ControlId kDeviceVersionText = 243;
inline constexpr ControlId kUpdateInfoIcon = 270;
inline constexpr ControlId kUpdateInfoQuestion = 271;

}
