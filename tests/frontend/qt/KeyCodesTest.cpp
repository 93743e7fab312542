#include "frontend/qt/KeyCodes.h"

#include <gtest/gtest.h>

namespace qttests {

namespace {

struct KeyCase {
    int key;
    Qt::KeyboardModifiers modifiers;
    int virtualKey;
};

class KeyCodesTest : public testing::TestWithParam<KeyCase> {};

TEST_P(KeyCodesTest, KeyHasItsVirtualKeyCode) {
    EXPECT_EQ(qt::ToVirtualKey(GetParam().key, GetParam().modifiers), GetParam().virtualKey);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, KeyCodesTest,
    testing::Values(
        KeyCase{Qt::Key_Delete, Qt::NoModifier, 0x2E}, KeyCase{Qt::Key_Menu, Qt::NoModifier, 0x5D},
        KeyCase{Qt::Key_A, Qt::NoModifier, 0x41}, KeyCase{Qt::Key_Z, Qt::ControlModifier, 0x5A},
        KeyCase{Qt::Key_0, Qt::NoModifier, 0x30}, KeyCase{Qt::Key_9, Qt::NoModifier, 0x39},
        KeyCase{Qt::Key_9, Qt::KeypadModifier, 0x69},
        KeyCase{Qt::Key_Plus, Qt::KeypadModifier, 0x6B},
        KeyCase{Qt::Key_Plus, Qt::NoModifier, 0xBB},
        KeyCase{Qt::Key_Delete, Qt::KeypadModifier, 0x2E},
        KeyCase{Qt::Key_F1, Qt::NoModifier, 0x70}, KeyCase{Qt::Key_F12, Qt::NoModifier, 0x7B},
        KeyCase{Qt::Key_F24, Qt::NoModifier, 0x87}, KeyCase{Qt::Key_Return, Qt::NoModifier, 0x0D},
        KeyCase{Qt::Key_Enter, Qt::KeypadModifier, 0x0D},
        KeyCase{Qt::Key_Escape, Qt::NoModifier, 0x1B}, KeyCase{Qt::Key_Space, Qt::NoModifier, 0x20},
        KeyCase{Qt::Key_PageUp, Qt::NoModifier, 0x21}, KeyCase{Qt::Key_Left, Qt::NoModifier, 0x25},
        KeyCase{Qt::Key_Down, Qt::ShiftModifier, 0x28},
        KeyCase{Qt::Key_Backspace, Qt::NoModifier, 0x08},
        KeyCase{Qt::Key_Backtab, Qt::ShiftModifier, 0x09}, KeyCase{Qt::Key_F25, Qt::NoModifier, 0},
        KeyCase{Qt::Key_unknown, Qt::NoModifier, 0}, KeyCase{Qt::Key_VolumeUp, Qt::NoModifier, 0}));

}

}
