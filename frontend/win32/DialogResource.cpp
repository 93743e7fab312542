#include "frontend/win32/DialogResource.h"

#include "frontend/win32/Font.h"
#include "frontend/win32/Text.h"
#include "frontend/win32/WinApi.h"
#include "panel/control/HelpTopics.h"

#include <algorithm>
#include <iterator>

namespace win32 {

namespace {

using panel::ControlKind;
using enum panel::ControlKind;

struct ControlClass {
    ControlKind kind;
    const wchar_t* name;
    DWORD style;
    DWORD extendedStyle;
};

constexpr DWORD kList = LVS_REPORT | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER;

// Statics and group boxes begin a group, so that the arrow keys stay among the controls between
// them. An icon keeps the size of its control.
constexpr ControlClass kClasses[] = {
    {GroupBox, WC_BUTTONW, BS_GROUPBOX | WS_GROUP, 0},
    {Label, WC_STATICW, SS_LEFT | WS_GROUP, 0},
    {CentredLabel, WC_STATICW, SS_CENTER | WS_GROUP, 0},
    {TextField, WC_EDITW, ES_READONLY | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE},
    {NumberField, WC_EDITW, ES_READONLY | ES_AUTOHSCROLL | ES_NUMBER, WS_EX_CLIENTEDGE},
    {EditField, WC_EDITW, ES_AUTOHSCROLL, WS_EX_CLIENTEDGE},
    {AddressField, WC_IPADDRESSW, 0, 0},
    {CheckBox, WC_BUTTONW, BS_AUTOCHECKBOX, 0},
    {DropDownList, WC_COMBOBOXW, CBS_DROPDOWNLIST | WS_VSCROLL, 0},
    {Icon, WC_STATICW, SS_ICON | SS_CENTERIMAGE | WS_GROUP, 0},
    {MultiSelectList, WC_LISTVIEWW, kList, WS_EX_CLIENTEDGE},
    {SingleSelectList, WC_LISTVIEWW, kList | LVS_SINGLESEL, WS_EX_CLIENTEDGE},
    {Log, WC_EDITW, ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL, WS_EX_CLIENTEDGE},
    {ProgressBar, PROGRESS_CLASSW, 0, 0},
    {Button, WC_BUTTONW, BS_PUSHBUTTON, 0},
    {DefaultButton, WC_BUTTONW, BS_DEFPUSHBUTTON, 0},
};

const ControlClass& ClassOf(ControlKind kind) {
    return *std::ranges::find(kClasses, kind, &ControlClass::kind);
}

DWORD StyleOf(const panel::ControlTemplate& control) {
    DWORD style = WS_CHILD | ClassOf(control.kind).style;
    if (panel::CanHaveFocus(control.kind)) {
        style |= WS_TABSTOP;
    }
    if (control.state != panel::InitialState::Hidden) {
        style |= WS_VISIBLE;
    }
    if (control.state == panel::InitialState::Disabled) {
        style |= WS_DISABLED;
    }
    return style;
}

struct WindowStyle {
    WindowKind kind;
    DWORD style;
    DWORD extendedStyle;
};

constexpr WindowStyle kWindowStyles[] = {
    {WindowKind::Child, WS_CHILD | DS_CONTROL, WS_EX_CONTROLPARENT},
    {WindowKind::Modal, WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME, 0},
    {WindowKind::Options, WS_CHILD | WS_CLIPSIBLINGS | DS_CONTROL | DS_3DLOOK, WS_EX_CONTROLPARENT},
};

constexpr WORD kVersion = 1;
constexpr WORD kSignature = 0xFFFF;
constexpr WORD kNone = 0;

}

CDialogResource::CDialogResource(const panel::DialogTemplate& dialogTemplate, WindowKind kind) {
    const WindowStyle& window = *std::ranges::find(kWindowStyles, kind, &WindowStyle::kind);
    AddWord(kVersion);
    AddWord(kSignature);
    AddDouble(0); // no help of the window itself
    AddDouble(window.extendedStyle);
    AddDouble(window.style | DS_SHELLFONT);
    AddWord(static_cast<unsigned>(dialogTemplate.controls.size()));
    AddRectangle({0, 0, dialogTemplate.size.width, dialogTemplate.size.height});
    AddWord(kNone); // menu
    AddWord(kNone); // class
    AddText(dialogTemplate.title);
    AddWord(kFontPoints);
    AddWord(FW_NORMAL);
    AddWord(DEFAULT_CHARSET << 8); // not italic
    AddText(kFontName);
    for (const panel::ControlTemplate& control : dialogTemplate.controls) {
        AddControl(control);
    }
}

void CDialogResource::AddControl(const panel::ControlTemplate& control) {
    const ControlClass& kind = ClassOf(control.kind);
    Align();
    AddDouble(control.helpContext);
    AddDouble(kind.extendedStyle);
    AddDouble(StyleOf(control));
    AddRectangle(control.rectangle);
    AddDouble(control.id);
    AddText(kind.name);
    AddText(control.text);
    AddWord(kNone); // creation data
}

void CDialogResource::AddRectangle(const panel::Rectangle& rectangle) {
    for (const int edge : {rectangle.x, rectangle.y, rectangle.width, rectangle.height}) {
        AddWord(static_cast<unsigned>(edge));
    }
}

void CDialogResource::AddWord(unsigned value) {
    m_words.push_back(static_cast<std::uint16_t>(value));
}

void CDialogResource::AddDouble(std::uint32_t value) {
    AddWord(value & 0xFFFF);
    AddWord(value >> 16);
}

void CDialogResource::AddText(const char* text) { AddText(ToWide(text).c_str()); }

void CDialogResource::AddText(const wchar_t* text) {
    const std::wstring_view all(text);
    std::ranges::copy(all, std::back_inserter(m_words));
    AddWord(0);
}

void CDialogResource::Align() {
    if (m_words.size() % 2 != 0) {
        AddWord(0);
    }
}

}
