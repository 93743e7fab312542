#pragma once

#include <string_view>

namespace fuzz {

/// Ends the process, with a line that says so, when what must hold does not. That is what a fuzzer
/// and a test notice alike.
void Require(bool holds, std::string_view what);

/// The same for two texts, which the line shows.
void RequireEqual(std::string_view seen, std::string_view expected, std::string_view what);

}
