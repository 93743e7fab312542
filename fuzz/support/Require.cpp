#include "fuzz/support/Require.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace fuzz {

namespace {

constexpr std::size_t kLongestShown = 400;

/// Between quotes, with each byte that is no printable ASCII in hexadecimal.
std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char letter : text.substr(0, kLongestShown)) {
        const auto byte = static_cast<unsigned char>(letter);
        char shown[5];
        std::snprintf(shown, sizeof shown, byte >= ' ' && byte < 0x7F ? "%c" : "\\x%02x", byte);
        quoted += shown;
    }
    return quoted + "\"" + (text.size() > kLongestShown ? "..." : "");
}

[[noreturn]] void Stop(const std::string& line) {
    std::fprintf(stderr, "REQUIREMENT BROKEN: %s\n", line.c_str());
    std::abort();
}

}

void Require(bool holds, std::string_view what) {
    if (!holds) {
        Stop(std::string(what));
    }
}

void RequireEqual(std::string_view seen, std::string_view expected, std::string_view what) {
    if (seen != expected) {
        Stop(std::string(what) + ": " + Quoted(seen) + " instead of " + Quoted(expected));
    }
}

}
