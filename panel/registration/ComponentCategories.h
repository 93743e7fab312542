#pragma once

#include "contract/Guid.h"

#include <cstdint>
#include <span>

namespace panel {

/// A kind of components in the host's tool suite.
struct ComponentCategory {
    contract::Guid identifier;
    const char* description;
};

/// The language of the descriptions, US English (a Windows locale identifier).
inline constexpr std::uint32_t kCategoryLocale = 0x409;
/// Units of UTF-16 that a component-category manager has room for (CATEGORYINFO in comcat.h holds
/// 128 with the terminator).
inline constexpr std::size_t kLongestCategoryDescription = 127;

/// The categories that are registered along with the component, in this order. The component itself
/// is registered for none of them.
std::span<const ComponentCategory> ComponentCategories();

}
