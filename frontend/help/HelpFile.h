#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace help {

/// One page of a help file. Texts are UTF-8.
struct HelpTopic {
    std::uint32_t number = 0; ///< the context number that it is asked for by
    std::string title;
    std::string text; ///< Markdown; links to other topics read "topic:NUMBER"
};

/// Takes a help file apart: a line "# NUMBER TITLE" begins a topic, which reaches to the next such
/// line or the end. What stands before the first one belongs to none. Topics come in the order of
/// the file.
std::vector<HelpTopic> ParseHelp(std::string_view file);

/// The first topic of that number; null when there is none.
const HelpTopic* FindTopic(const std::vector<HelpTopic>& topics, std::uint32_t number);

}
