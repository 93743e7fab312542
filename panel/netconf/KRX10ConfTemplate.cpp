#include "panel/netconf/KRX10ConfTemplate.h"

#include "panel/control/DialogHandler.h"
#include "panel/control/HelpTopics.h"

namespace panel {

namespace {

constexpr ControlId kGeneralGroup = 235;
constexpr ControlId kMediaGroup = 252;
constexpr ControlId kIpAddressEditLabel = 255;
constexpr ControlId kDescriptionEditLabel = 256;
constexpr ControlId kSubnetMaskEditLabel = 260;
constexpr ControlId kGatewayEditLabel = 262;

constexpr auto kControls = WithTopics({
    {kGeneralGroup, ControlKind::GroupBox, "General", {7, 7, 224, 96}},
    {kUseDhcpBox, ControlKind::CheckBox, "&Use DHCP", {14, 19, 100, 10}},
    {kIpAddressEditLabel, ControlKind::Label, "IP address:", {14, 36, 56, 8}},
    {kIpAddressEdit, ControlKind::AddressField, "", {74, 34, 110, 13}},
    {kSubnetMaskEditLabel, ControlKind::Label, "Subnet mask:", {14, 52, 56, 8}},
    {kSubnetMaskEdit, ControlKind::AddressField, "", {74, 50, 110, 13}},
    {kGatewayEditLabel, ControlKind::Label, "Gateway:", {14, 68, 56, 8}},
    {kGatewayEdit, ControlKind::AddressField, "", {74, 66, 110, 13}},
    {kDescriptionEditLabel, ControlKind::Label, "Description:", {14, 85, 56, 8}},
    {kDescriptionEdit, ControlKind::EditField, "", {74, 83, 150, 13}},
    {kMediaGroup, ControlKind::GroupBox, "Media Formatting", {7, 107, 224, 28}},
    {kInternalFlashBox, ControlKind::CheckBox, "Internal Compact Flash", {14, 119, 106, 10}},
    {kPcCardBox, ControlKind::CheckBox, "PCCard Compact Flash", {122, 119, 104, 10}},
    {kOkButton,
     ControlKind::DefaultButton,
     "OK",
     {127, 140, 50, 14},
     InitialState::Enabled,
     kNetworkTopic},
    {kCancelButton,
     ControlKind::Button,
     "Cancel",
     {181, 140, 50, 14},
     InitialState::Enabled,
     kNetworkTopic},
});

}

const DialogTemplate kKRX10ConfTemplate{203, "KRX-10 Configuration", {238, 159}, kControls};

}
