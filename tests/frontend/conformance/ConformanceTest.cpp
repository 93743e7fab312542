#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

using enum panel::ControlKind;
using enum panel::InitialState;

constexpr panel::ControlTemplate kSmallControls[] = {
    {kFrame, GroupBox, "Fr&ame", {4, 4, 292, 242}},
    {kCaption, Label, "Capt&ion", {10, 16, 50, 8}},
    {kField, TextField, "initial", {64, 14, 60, 12}, Enabled, 77},
    {kNumber, NumberField, "", {130, 14, 60, 12}},
    {kManyList, MultiSelectList, "", {10, 30, 130, 70}, Enabled, 78},
    {kOneList, SingleSelectList, "", {150, 30, 130, 70}},
    {kLog, Log, "", {10, 104, 270, 40}},
    {kBar, ProgressBar, "", {10, 150, 130, 12}},
    {kFirstButton, Button, "&First", {10, 170, 40, 14}, Enabled, 79},
    {kDisabledButton, Button, "&Disabled", {54, 170, 40, 14}, Disabled},
    {kHiddenButton, Button, "&Hidden", {98, 170, 40, 14}, Hidden},
    {kSecondButton, Button, "Se&cond", {142, 170, 40, 14}},
    {kDisabledList, MultiSelectList, "", {190, 150, 90, 40}, Disabled},
    {kCentred, CentredLabel, "Centred", {200, 14, 80, 8}},
    {kEdit, EditField, "", {10, 200, 80, 13}},
    {kAddress, AddressField, "", {100, 200, 100, 13}, Enabled, 80},
    {kCheck, CheckBox, "&Tick", {210, 200, 60, 12}},
    {kChoices, DropDownList, "", {10, 220, 80, 14}},
    {kIcon, Icon, "", {100, 220, 20, 20}},
};

constexpr panel::ControlTemplate kDialogControls[] = {
    {kDialogField, TextField, "", {7, 7, 100, 12}, Enabled, 91},
    {panel::kOkButton, DefaultButton, "OK", {7, 30, 40, 14}},
    {panel::kCancelButton, Button, "Cancel", {54, 30, 40, 14}, Hidden},
};

constexpr panel::ControlTemplate kFormControls[] = {
    {kFormEdit, EditField, "", {7, 7, 100, 13}},
    {kFormAddress, AddressField, "", {7, 24, 100, 13}},
    {kFormCheck, CheckBox, "&Tick", {7, 41, 100, 12}},
    {kFormChoices, DropDownList, "", {7, 57, 100, 14}},
    {panel::kOkButton, DefaultButton, "OK", {7, 80, 40, 14}},
    {panel::kCancelButton, Button, "Cancel", {54, 80, 40, 14}},
};

constexpr panel::ControlTemplate kBareControls[] = {
    {410, Label, "Nothing to press", {7, 7, 100, 8}},
};

}

const panel::DialogTemplate kSmallTemplate{300, "", {300, 250}, kSmallControls};
const panel::DialogTemplate kDialogTemplate{400, "A dialog", {120, 60}, kDialogControls};
const panel::DialogTemplate kFormTemplate{420, "A form", {120, 100}, kFormControls};
const panel::DialogTemplate kBareDialogTemplate{402, "A bare dialog", {120, 60}, kBareControls};

panel::IView& ConformanceTest::Show(const panel::DialogTemplate& dialogTemplate) {
    m_view = m_driver->CreateView(dialogTemplate, m_handler);
    std::erase(m_handler.events, "init");
    return *m_view;
}

void ConformanceTest::FillList(panel::ControlId list, int rows) {
    View().InsertColumn(list, 0, {"Name", 100, panel::Alignment::Left});
    View().InsertColumn(list, 1, {"Number", 50, panel::Alignment::Right});
    for (int row = 0; row < rows; ++row) {
        View().InsertRow(list, row, "row " + std::to_string(row));
        View().SetCell(list, row, 1, std::to_string(row));
    }
}

panel::DialogOutcome ConformanceTest::RunDialog(const panel::DialogTemplate& dialogTemplate) {
    return Toolkit().RunDialog(dialogTemplate, m_dialogHandler, panel::Owner::Panel);
}

void ConformanceTest::LoseViewInABox() {
    constexpr std::uint32_t kError = 0x10;
    m_driver->ExpectBox(1, [this] { m_view.reset(); });
    m_driver->ExpectBox(1);
    Toolkit().ShowBox("Device lost", "first", kError);
    Toolkit().ShowBox("Panel closed", "second", kError);
}

}
