#pragma once

#include "component/win32/com/ComApi.h"

#include <optional>
#include <vector>

namespace component {

/// The types of an event's parameters, in order, as the type library declares them; nothing for a
/// number that names no event.
///
/// An enumeration is declared as a type of its own, which no value can be converted to: it counts
/// as the 32-bit integer that carries it.
std::optional<std::vector<VARTYPE>> DescribeEvent(ITypeInfo& events, DISPID number);

}
