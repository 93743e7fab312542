#include "simulator/device/VersionText.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <system_error>
#include <vector>

namespace simulator {

namespace {

constexpr std::string_view kDigits = "0123456789";

std::vector<std::uint32_t> NumbersOf(std::string_view text) {
    std::vector<std::uint32_t> numbers;
    while (true) {
        std::uint32_t number = 0;
        const auto* end = text.data() + text.size();
        const auto [rest, error] = std::from_chars(text.data(), end, number);
        if (error == std::errc::result_out_of_range) {
            number = std::numeric_limits<std::uint32_t>::max();
        }
        numbers.push_back(number);
        if (rest == end || *rest != '.') {
            break;
        }
        text.remove_prefix(static_cast<std::size_t>(rest - text.data()) + 1);
    }
    while (!numbers.empty() && numbers.back() == 0) {
        numbers.pop_back();
    }
    return numbers;
}

}

bool IsVersion(std::string_view text) {
    const bool hasOnlyDigitsAndDots = text.find_first_not_of("0123456789.") == text.npos;
    return hasOnlyDigitsAndDots && !text.empty() && text.front() != '.' && text.back() != '.' &&
           text.find("..") == text.npos;
}

bool IsNewer(std::string_view version, std::string_view other) {
    return NumbersOf(version) > NumbersOf(other);
}

std::string_view LastVersionIn(std::string_view text) {
    const auto end = text.find_last_of(kDigits);
    if (end == text.npos) {
        return {};
    }
    text = text.substr(0, end + 1);
    const auto before = text.find_last_not_of("0123456789.");
    text = before == text.npos ? text : text.substr(before + 1);
    text = text.substr(text.find_first_of(kDigits));
    return IsVersion(text) ? text : text.substr(text.rfind('.') + 1);
}

}
