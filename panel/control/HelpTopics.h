#pragma once

#include "panel/control/ControlKinds.h"
#include "panel/control/DialogTemplate.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace panel {

/// Topics of the help (help/) that belong to no single control. A control's own has the number of
/// its id; the buttons that several dialogs share have their dialog's.
inline constexpr std::uint32_t kOverviewTopic = 1;
inline constexpr std::uint32_t kPhoneFileUploadTopic = 1116;
inline constexpr std::uint32_t kSelfTestTopic = 1201;
inline constexpr std::uint32_t kNetworkTopic = 1203;

/// The controls of a dialog with a topic for each that can have the focus: its own, where the table
/// names none.
template <std::size_t kCount>
constexpr std::array<ControlTemplate, kCount> WithTopics(const ControlTemplate (&table)[kCount]) {
    std::array<ControlTemplate, kCount> controls = std::to_array(table);
    for (ControlTemplate& control : controls) {
        if (CanHaveFocus(control.kind) && control.helpContext == 0) {
            control.helpContext = control.id;
        }
    }
    return controls;
}

}
