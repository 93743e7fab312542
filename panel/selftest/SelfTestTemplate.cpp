#include "panel/selftest/SelfTestTemplate.h"

#include "panel/control/DialogHandler.h"
#include "panel/control/HelpTopics.h"

namespace panel {

namespace {

constexpr auto kControls = WithTopics({
    {kSelfTestList, ControlKind::SingleSelectList, "", {7, 7, 184, 202}},
    {kOkButton,
     ControlKind::DefaultButton,
     "OK",
     {74, 217, 50, 14},
     InitialState::Enabled,
     kSelfTestTopic},
    // Hidden: it is there so that Escape and the close box have a button to press.
    {kCancelButton,
     ControlKind::Button,
     "Cancel",
     {141, 217, 50, 14},
     InitialState::Hidden,
     kSelfTestTopic},
});

}

const DialogTemplate kSelfTestTemplate{201, "Startup Self-test statuses", {198, 238}, kControls};

}
