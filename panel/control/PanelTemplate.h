#pragma once

#include "panel/control/DialogTemplate.h"

namespace panel {

/// The panel's own view (template 103): controls by role.
extern const DialogTemplate kPanelTemplate;

inline constexpr ControlId kHelpButton = 9;
inline constexpr ControlId kInfoGroup = 201;
inline constexpr ControlId kSerialNumberLabel = 202;
inline constexpr ControlId kHardwareLabel = 203;
inline constexpr ControlId kFlashSizeLabel = 204;
inline constexpr ControlId kFreeFlashLabel = 205;
inline constexpr ControlId kRamSizeLabel = 206;
inline constexpr ControlId kFreeRamLabel = 207;
inline constexpr ControlId kBootSwLabel = 208;
inline constexpr ControlId kFpgaLabel = 209;
inline constexpr ControlId kApplicationSwLabel = 210;
inline constexpr ControlId kSerialNumberField = 211;
inline constexpr ControlId kHardwareField = 212;
inline constexpr ControlId kFlashSizeField = 213;
inline constexpr ControlId kFreeFlashField = 214;
inline constexpr ControlId kRamSizeField = 215;
inline constexpr ControlId kFreeRamField = 216;
inline constexpr ControlId kBootSwField = 217;
inline constexpr ControlId kFpgaField = 218;
inline constexpr ControlId kApplicationSwField = 219;
inline constexpr ControlId kSelfTestLabel = 220;
inline constexpr ControlId kSelfTestField = 221;
inline constexpr ControlId kDetailsButton = 222;
inline constexpr ControlId kFileGroup = 223;
inline constexpr ControlId kFileList = 224;
inline constexpr ControlId kUpdateButton = 226;
inline constexpr ControlId kDeleteButton = 227;
inline constexpr ControlId kReportButton = 228;
inline constexpr ControlId kResetButton = 229;
inline constexpr ControlId kCloseButton = 230;
inline constexpr ControlId kProgressGroup = 234;
inline constexpr ControlId kIpAddressField = 244;
inline constexpr ControlId kIpAddressLabel = 245;
inline constexpr ControlId kNetworkButton = 246;
inline constexpr ControlId kProgressBar = 253;
inline constexpr ControlId kTaskLabel = 254;
inline constexpr ControlId kStatusLog = 259;

}
