#include "frontend/qt/KeyCodes.h"

#include <algorithm>
#include <iterator>

namespace qt {

namespace {

struct KeyCode {
    int key;
    std::uint16_t virtualKey;
};

constexpr std::uint16_t kNumpadZero = 0x60;
constexpr std::uint16_t kFirstFunctionKey = 0x70;

constexpr KeyCode kKeyCodes[] = {
    {Qt::Key_Backspace, 0x08},   {Qt::Key_Tab, 0x09},       {Qt::Key_Backtab, 0x09},
    {Qt::Key_Clear, 0x0C},       {Qt::Key_Return, 0x0D},    {Qt::Key_Enter, 0x0D},
    {Qt::Key_Shift, 0x10},       {Qt::Key_Control, 0x11},   {Qt::Key_Alt, 0x12},
    {Qt::Key_AltGr, 0x12},       {Qt::Key_Pause, 0x13},     {Qt::Key_CapsLock, 0x14},
    {Qt::Key_Escape, 0x1B},      {Qt::Key_Space, 0x20},     {Qt::Key_PageUp, 0x21},
    {Qt::Key_PageDown, 0x22},    {Qt::Key_End, 0x23},       {Qt::Key_Home, 0x24},
    {Qt::Key_Left, 0x25},        {Qt::Key_Up, 0x26},        {Qt::Key_Right, 0x27},
    {Qt::Key_Down, 0x28},        {Qt::Key_Select, 0x29},    {Qt::Key_Print, 0x2C},
    {Qt::Key_Insert, 0x2D},      {Qt::Key_Delete, 0x2E},    {Qt::Key_Help, 0x2F},
    {Qt::Key_Super_L, 0x5B},     {Qt::Key_Meta, 0x5B},      {Qt::Key_Super_R, 0x5C},
    {Qt::Key_Menu, 0x5D},        {Qt::Key_Sleep, 0x5F},     {Qt::Key_NumLock, 0x90},
    {Qt::Key_ScrollLock, 0x91},  {Qt::Key_Semicolon, 0xBA}, {Qt::Key_Equal, 0xBB},
    {Qt::Key_Plus, 0xBB},        {Qt::Key_Comma, 0xBC},     {Qt::Key_Minus, 0xBD},
    {Qt::Key_Period, 0xBE},      {Qt::Key_Slash, 0xBF},     {Qt::Key_QuoteLeft, 0xC0},
    {Qt::Key_BracketLeft, 0xDB}, {Qt::Key_Backslash, 0xDC}, {Qt::Key_BracketRight, 0xDD},
    {Qt::Key_Apostrophe, 0xDE},
};

constexpr KeyCode kKeypadCodes[] = {
    {Qt::Key_Asterisk, 0x6A}, {Qt::Key_Plus, 0x6B},   {Qt::Key_Comma, 0x6E},
    {Qt::Key_Minus, 0x6D},    {Qt::Key_Period, 0x6E}, {Qt::Key_Slash, 0x6F},
};

template <std::size_t N>
std::uint16_t Find(const KeyCode (&table)[N], int key) {
    const auto* const found = std::ranges::find(table, key, &KeyCode::key);
    return found == std::end(table) ? kNoVirtualKey : found->virtualKey;
}

constexpr bool IsBetween(int key, int first, int last) { return key >= first && key <= last; }

std::uint16_t FromKeypad(int key) {
    if (IsBetween(key, Qt::Key_0, Qt::Key_9)) {
        return static_cast<std::uint16_t>(kNumpadZero + (key - Qt::Key_0));
    }
    return Find(kKeypadCodes, key);
}

}

std::uint16_t ToVirtualKey(int key, Qt::KeyboardModifiers modifiers) {
    if (modifiers.testFlag(Qt::KeypadModifier)) {
        if (const std::uint16_t virtualKey = FromKeypad(key); virtualKey != kNoVirtualKey) {
            return virtualKey;
        }
    }
    if (IsBetween(key, Qt::Key_0, Qt::Key_9) || IsBetween(key, Qt::Key_A, Qt::Key_Z)) {
        return static_cast<std::uint16_t>(key);
    }
    if (IsBetween(key, Qt::Key_F1, Qt::Key_F24)) {
        return static_cast<std::uint16_t>(kFirstFunctionKey + (key - Qt::Key_F1));
    }
    return Find(kKeyCodes, key);
}

}
