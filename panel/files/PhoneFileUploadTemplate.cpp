#include "panel/files/PhoneFileUploadTemplate.h"

#include "panel/control/HelpTopics.h"

namespace panel {

namespace {

constexpr auto kControls = WithTopics({
    {kUploadMethodLabel, ControlKind::Label, "Method:", {4, 6, 44, 8}},
    {kUploadMethodList, ControlKind::DropDownList, "", {52, 4, 77, 14}},
    {kUploadDestinationLabel, ControlKind::Label, "Destination:", {4, 23, 44, 8}},
    {kUploadDestinationList, ControlKind::DropDownList, "", {52, 21, 77, 14}},
});

}

const DialogTemplate kPhoneFileUploadTemplate{116, "", {133, 39}, kControls};

}
