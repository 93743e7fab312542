// Versions of packages: two lines and the rest, each a version.

#include "panel/control/VersionNumber.h"

#include "fuzz/support/Input.h"
#include "fuzz/support/Require.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

namespace {

using namespace fuzz;
using panel::VersionNumber;

/// As the C library reads numbers.
VersionNumber Read(const std::string& text) {
    constexpr long long kSmallest = std::numeric_limits<std::int32_t>::min();
    constexpr long long kLargest = std::numeric_limits<std::int32_t>::max();
    VersionNumber numbers;
    const char* position = text.c_str();
    bool hasMore = !text.empty();
    while (hasMore) {
        char* end = nullptr;
        const long long number = std::strtoll(position, &end, 10);
        numbers.push_back(static_cast<std::int32_t>(std::clamp(number, kSmallest, kLargest)));
        hasMore = *end == '.';
        position = end + 1;
    }
    return numbers;
}

std::string Written(const VersionNumber& numbers) {
    std::string text;
    for (const std::int32_t number : numbers) {
        const std::string digits = std::to_string(std::abs(std::int64_t{number}));
        const std::string zeros(digits.size() < 3 ? 3 - digits.size() : 0, '0');
        text += std::string(text.empty() ? "" : ".") + (number < 0 ? "-" : "") + zeros + digits;
    }
    return text;
}

void TryOne(const std::string& text) {
    const VersionNumber numbers = panel::ParseVersion(text);
    Require(numbers == Read(text), "a version is read as the C library reads its numbers");
    const std::string whole = Written(numbers);
    RequireEqual(panel::FormatVersion(numbers, whole.size() + 1), whole, "a version is written");
    Require(panel::ParseVersion(whole) == numbers, "what is written reads the same");
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, whole.size(), std::size_t{80}}) {
        RequireEqual(panel::FormatVersion(numbers, size),
                     std::string_view(whole).substr(0, size == 0 ? 0 : size - 1),
                     "a version is cut to its buffer");
    }
    RequireEqual(panel::NormalizePackageVersion(text), std::string_view(whole).substr(0, 79),
                 "a package version is cut to 79 characters");
    Require(panel::CompareVersions(text, whole) == 0, "a version and what is written are the same");
}

void TryPair(const std::string& a, const std::string& b) {
    const VersionNumber left = Read(a);
    const VersionNumber right = Read(b);
    const int expected = left < right ? -1 : right < left ? 1 : 0;
    Require(panel::CompareVersions(a, b) == expected, "versions compare as their numbers do");
    Require(panel::CompareVersions(b, a) == -expected, "the other way round they do so as well");
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CInput input(data, size);
    const std::string first(input.Line());
    const std::string second(input.Line());
    const std::string third(input.Rest());
    for (const std::string& text : {first, second, third}) {
        TryOne(text);
    }
    TryPair(first, second);
    TryPair(second, third);
    TryPair(first, third);
    return 0;
}
