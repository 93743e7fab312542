#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace simulator {

/// What is wrong with an INI text.
struct IniMistake {
    /// From 1.
    std::size_t line = 0;
    std::string reason;
};

/// One "key = value".
struct IniEntry {
    std::string_view section;
    std::string_view key;
    std::string_view value;
};

/// Receives the entries in their order and says what is wrong with one; empty when it is good.
using IniVisitor = std::function<std::string(const IniEntry&)>;

/// Reads an INI text up to its first mistake, which is that of the visitor or of the text: a line
/// that is neither section, entry, comment nor empty, one of more than 198 bytes, one that is not
/// UTF-8 or holds a zero byte.
std::optional<IniMistake> ReadIni(std::string_view text, const IniVisitor& visit);

}
