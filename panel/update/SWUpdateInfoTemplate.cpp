#include "panel/update/SWUpdateInfoTemplate.h"

#include "panel/control/DialogHandler.h"
#include "panel/control/HelpTopics.h"

namespace panel {

namespace {

constexpr auto kControls = WithTopics({
    {kUpdateInfoIcon, ControlKind::Icon, "", {7, 10, 20, 20}},
    {kUpdateInfoMessage, ControlKind::CentredLabel, "<info>", {32, 8, 167, 26}},
    {kPackageVersionLabel, ControlKind::Label, "Flash Update Version:", {32, 40, 84, 8}},
    {kPackageVersionText, ControlKind::Label, "", {118, 40, 81, 8}},
    {kDeviceVersionLabel, ControlKind::Label, "Device's SW Version:", {32, 52, 84, 8}},
    {kDeviceVersionText, ControlKind::Label, "", {118, 52, 81, 8}},
    {kUpdateInfoQuestion,
     ControlKind::Label,
     "Would you like to update the Programming Device now?",
     {14, 66, 185, 8}},
    {kYesButton, ControlKind::DefaultButton, "&Yes", {48, 80, 50, 14}},
    {kNoButton, ControlKind::Button, "&No", {108, 80, 50, 14}},
});

}

const DialogTemplate kSWUpdateInfoTemplate{
    202, "Programming Device's SW Update", {206, 100}, kControls};

}
