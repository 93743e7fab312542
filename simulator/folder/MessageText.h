#pragma once

#include <string>
#include <string_view>

/// Texts that others have written (names in descriptions, paths) in messages of one line.
namespace simulator {

/// `text` with its control characters and line separators as JSON escapes: they would break the
/// message into lines, or steer the terminal that shows it. All other bytes stay as they are.
std::string EscapeForMessage(std::string_view text);

/// `text` in quotes and escaped as JSON does.
std::string QuoteForMessage(std::string_view text);

}
