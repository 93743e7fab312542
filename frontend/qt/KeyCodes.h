#pragma once

#include <qnamespace.h>

#include <cstdint>

namespace qt {

/// The key has no virtual-key code.
inline constexpr std::uint16_t kNoVirtualKey = 0;

/// The Windows virtual-key code (winuser.h) of a toolkit key (Qt::Key). Punctuation is that of the
/// US keyboard. kNoVirtualKey for keys without one.
std::uint16_t ToVirtualKey(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

}
