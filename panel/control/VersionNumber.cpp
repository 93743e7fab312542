#include "panel/control/VersionNumber.h"

#include "panel/control/Format.h"

#include <algorithm>
#include <compare>
#include <limits>

namespace panel {

namespace {

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Reads one number at the beginning of `text` and removes what it read.
std::int32_t TakeNumber(std::string_view& text) {
    constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
    constexpr std::int64_t kSmallest = std::numeric_limits<std::int32_t>::min();
    std::size_t position = 0;
    while (position < text.size() && IsBlank(text[position])) {
        ++position;
    }
    const bool isNegative = position < text.size() && text[position] == '-';
    if (isNegative || (position < text.size() && text[position] == '+')) {
        ++position;
    }
    const std::size_t firstDigit = position;
    std::int64_t value = 0;
    for (; position < text.size() && IsDigit(text[position]); ++position) {
        value = std::min(value * 10 + (text[position] - '0'), kLargest + 1);
    }
    // Without digits nothing was read, not even the sign: "-.5" ends at its first character.
    text.remove_prefix(position > firstDigit ? position : 0);
    return static_cast<std::int32_t>(std::clamp(isNegative ? -value : value, kSmallest, kLargest));
}

}

VersionNumber ParseVersion(std::string_view text) {
    VersionNumber numbers;
    bool hasMore = !text.empty();
    while (hasMore) {
        numbers.push_back(TakeNumber(text));
        hasMore = !text.empty() && text.front() == '.';
        text.remove_prefix(hasMore ? 1 : 0);
    }
    return numbers;
}

int CompareVersions(std::string_view a, std::string_view b) {
    const VersionNumber left = ParseVersion(a);
    const VersionNumber right = ParseVersion(b);
    const auto order = std::lexicographical_compare_three_way(left.begin(), left.end(),
                                                              right.begin(), right.end());
    return std::is_lt(order) ? -1 : std::is_gt(order) ? 1 : 0;
}

std::string FormatVersion(const VersionNumber& version, std::size_t size) {
    std::string text;
    for (const std::int32_t number : version) {
        text += Format(text.empty() ? "%.3d" : ".%.3d", number);
    }
    text.resize(std::min(text.size(), size == 0 ? 0 : size - 1));
    return text;
}

std::string NormalizePackageVersion(std::string_view text) {
    constexpr std::size_t kSize = 80;
    return FormatVersion(ParseVersion(text), kSize);
}

}
