#pragma once

#include "panel/control/DialogTemplate.h"

namespace panel {

/// The network configuration dialog (template 203).
extern const DialogTemplate kKRX10ConfTemplate;

inline constexpr ControlId kIpAddressEdit = 247;
inline constexpr ControlId kUseDhcpBox = 248;
inline constexpr ControlId kDescriptionEdit = 249;
inline constexpr ControlId kInternalFlashBox = 250;
inline constexpr ControlId kPcCardBox = 251;
inline constexpr ControlId kSubnetMaskEdit = 261;
inline constexpr ControlId kGatewayEdit = 263;

}
