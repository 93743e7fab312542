#include "frontend/help/HelpFile.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <system_error>

namespace help {

namespace {

constexpr std::string_view kMark = "# ";

std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

std::optional<HelpTopic> ParseHeading(std::string_view line) {
    if (!line.starts_with(kMark)) {
        return std::nullopt;
    }
    line.remove_prefix(kMark.size());
    HelpTopic topic;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), topic.number);
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    if (error != std::errc() || line.size() < 2 || line.front() != ' ') {
        return std::nullopt;
    }
    topic.title = line.substr(1);
    return topic;
}

}

std::vector<HelpTopic> ParseHelp(std::string_view file) {
    std::vector<HelpTopic> topics;
    while (!file.empty()) {
        const std::string_view line = TakeLine(file);
        if (std::optional<HelpTopic> topic = ParseHeading(line)) {
            topics.push_back(std::move(*topic));
        } else if (!topics.empty()) {
            topics.back().text.append(line).append("\n");
        }
    }
    return topics;
}

const HelpTopic* FindTopic(const std::vector<HelpTopic>& topics, std::uint32_t number) {
    const auto found = std::find_if(topics.begin(), topics.end(), [number](const HelpTopic& topic) {
        return topic.number == number;
    });
    return found == topics.end() ? nullptr : &*found;
}

}
