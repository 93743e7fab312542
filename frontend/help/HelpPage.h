#pragma once

#include "frontend/help/HelpFile.h"

namespace help {

/// A piece of a paragraph. Text is UTF-8.
struct HelpRun {
    std::string text;
    std::uint32_t topic = 0; ///< of a link: the topic that it leads to

    friend bool operator==(const HelpRun&, const HelpRun&) = default;
};

struct HelpParagraph {
    enum class Kind {
        Title,
        Heading,
        Text,
        Item,       ///< of a list, its mark included
        Term,       ///< the first cell of a table's row
        Definition, ///< another cell of it, with the heading of its column
    };

    Kind kind = Kind::Text;
    std::vector<HelpRun> runs;

    friend bool operator==(const HelpParagraph&, const HelpParagraph&) = default;
};

/// A topic as paragraphs, for viewers that know no Markdown: its title, then its text. A table
/// becomes a term and its definitions for each row; the headings of one with two columns, which
/// say no more than the cells, are left out.
std::vector<HelpParagraph> LayOut(const HelpTopic& topic);

}
