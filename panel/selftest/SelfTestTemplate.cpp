#include "panel/selftest/SelfTestTemplate.h"

#include "panel/control/DialogHandler.h"

namespace panel {

namespace {

constexpr ControlTemplate kControls[] = {
    {kSelfTestList, ControlKind::SingleSelectList, "", {7, 7, 184, 202}},
    {kOkButton, ControlKind::DefaultButton, "OK", {74, 217, 50, 14}},
    // Hidden: it is there so that Escape and the close box have a button to press.
    {kCancelButton, ControlKind::Button, "Cancel", {141, 217, 50, 14}, InitialState::Hidden},
};

}

const DialogTemplate kSelfTestTemplate{201, "Startup Self-test statuses", {198, 238}, kControls};

}
