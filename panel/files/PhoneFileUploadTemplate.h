#pragma once

#include "panel/control/DialogTemplate.h"

namespace panel {

/// The controls that the open dialog for phone files carries below its list (template 116).
extern const DialogTemplate kPhoneFileUploadTemplate;

inline constexpr ControlId kUploadMethodLabel = 264;
inline constexpr ControlId kUploadMethodList = 265;
inline constexpr ControlId kUploadDestinationLabel = 266;
inline constexpr ControlId kUploadDestinationList = 267;

}
