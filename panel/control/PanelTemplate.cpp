#include "panel/control/PanelTemplate.h"

#include "panel/control/HelpTopics.h"

namespace panel {

namespace {

using enum ControlKind;
using enum InitialState;

// Eleven rows of 16 units share the information group's 190: the first field at 18, so that the
// last one ends 7 units above the frame. Labels stand 2 units lower to share their field's base
// line.
constexpr int kFirstRow = 18;
constexpr int kRowHeight = 16;

constexpr Rectangle LabelAt(int row) { return {14, kFirstRow + 2 + row * kRowHeight, 54, 8}; }
constexpr Rectangle FieldAt(int row) { return {69, kFirstRow + row * kRowHeight, 60, 12}; }

constexpr auto kControls = WithTopics({
    {kInfoGroup, GroupBox, "KRX-8 Info", {7, 7, 129, 190}},
    {kSerialNumberLabel, Label, "S/N", LabelAt(0)},
    {kSerialNumberField, TextField, "", FieldAt(0)},
    {kHardwareLabel, Label, "HW", LabelAt(1)},
    {kHardwareField, TextField, "", FieldAt(1)},
    {kFlashSizeLabel, Label, "Flash Size (B)", LabelAt(2)},
    {kFlashSizeField, NumberField, "", FieldAt(2)},
    {kFreeFlashLabel, Label, "Free Flash (B)", LabelAt(3)},
    {kFreeFlashField, NumberField, "", FieldAt(3)},
    {kRamSizeLabel, Label, "SRAM Size (B)", LabelAt(4)},
    {kRamSizeField, NumberField, "", FieldAt(4)},
    {kFreeRamLabel, Label, "Free SRAM (B)", LabelAt(5)},
    {kFreeRamField, NumberField, "", FieldAt(5)},
    {kBootSwLabel, Label, "Boot SW", LabelAt(6)},
    {kBootSwField, TextField, "", FieldAt(6)},
    {kFpgaLabel, Label, "FPGA", LabelAt(7)},
    {kFpgaField, TextField, "", FieldAt(7)},
    {kApplicationSwLabel, Label, "Application SW", LabelAt(8)},
    {kApplicationSwField, TextField, "", FieldAt(8)},
    {kSelfTestLabel, Label, "Self-test Status", LabelAt(9)},
    {kSelfTestField, TextField, "", FieldAt(9)},
    {kIpAddressLabel, Label, "IP address", LabelAt(10)},
    {kIpAddressField, TextField, "", FieldAt(10)},
    {kFileGroup, GroupBox, "Flash Box Files", {143, 7, 300, 190}},
    {kFileList, MultiSelectList, "", {152, 18, 284, 172}, Disabled},
    {kProgressGroup, GroupBox, "Progress Info", {7, 200, 436, 67}},
    {kProgressBar, ProgressBar, "", {14, 212, 422, 12}, Hidden},
    {kTaskLabel, CentredLabel, "Task (%)", {14, 228, 421, 8}, Hidden},
    {kStatusLog, Log, "", {15, 215, 421, 48}},
    {kUpdateButton, Button, "&Update", {7, 273, 40, 14}, Disabled},
    {kDeleteButton, Button, "&Delete", {51, 273, 40, 14}, Disabled},
    {kReportButton, Button, "&Report", {95, 273, 40, 14}, Disabled},
    {kResetButton, Button, "Re&set", {139, 273, 40, 14}, Disabled},
    {kDetailsButton, Button, "D&etails", {271, 273, 40, 14}, Disabled},
    {kNetworkButton, Button, "&KRX10 Conf", {315, 273, 40, 14}, Disabled},
    {kCloseButton, Button, "&Close", {359, 273, 40, 14}},
    {kHelpButton, Button, "&Help", {403, 273, 40, 14}},
});

}

const DialogTemplate kPanelTemplate{103, "", {450, 294}, kControls};

}
