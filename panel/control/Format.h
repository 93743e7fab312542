#pragma once

#include <cstdio>
#include <string>

namespace panel {

/// printf into a string. `format` is a literal of the panel's own; texts from a device are only
/// ever arguments.
template <class... Arguments>
std::string Format(const char* format, Arguments... arguments) {
    const int length = std::snprintf(nullptr, 0, format, arguments...);
    std::string text(static_cast<std::size_t>(length), '\0');
    std::snprintf(text.data(), text.size() + 1, format, arguments...);
    return text;
}

}
