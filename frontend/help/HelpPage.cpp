#include "frontend/help/HelpPage.h"

#include <cctype>
#include <charconv>
#include <utility>

namespace help {

namespace {

using Kind = HelpParagraph::Kind;
using Cells = std::vector<std::string>;

constexpr std::string_view kHeadingMark = "### ";
constexpr std::string_view kItemMark = "- ";
constexpr std::string_view kShownItemMark = "\xE2\x80\xA2 ";
constexpr std::string_view kLinkScheme = "topic:";

std::string_view Trim(std::string_view text) {
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

std::uint32_t TopicOf(std::string_view link) {
    std::uint32_t topic = 0;
    if (link.starts_with(kLinkScheme)) {
        link.remove_prefix(kLinkScheme.size());
        std::from_chars(link.data(), link.data() + link.size(), topic);
    }
    return topic;
}

// "[text](topic:7)" is a link; anything else is text.
std::vector<HelpRun> SplitRuns(std::string_view text) {
    std::vector<HelpRun> runs;
    while (!text.empty()) {
        const std::size_t open = text.find('[');
        const std::size_t middle = text.find("](", open);
        const std::size_t close = text.find(')', middle);
        if (open == std::string_view::npos || close == std::string_view::npos) {
            runs.push_back({std::string(text)});
            break;
        }
        if (open > 0) {
            runs.push_back({std::string(text.substr(0, open))});
        }
        runs.push_back({std::string(text.substr(open + 1, middle - open - 1)),
                        TopicOf(text.substr(middle + 2, close - middle - 2))});
        text.remove_prefix(close + 1);
    }
    return runs;
}

Cells SplitCells(std::string_view line) {
    Cells cells;
    line.remove_prefix(1);
    for (std::size_t end = line.find('|'); end != std::string_view::npos; end = line.find('|')) {
        cells.emplace_back(Trim(line.substr(0, end)));
        line.remove_prefix(end + 1);
    }
    return cells;
}

/// The length of "12. " or "- " that a line begins with; 0 when it begins no item.
std::size_t ItemMarkLength(std::string_view line) {
    if (line.starts_with(kItemMark)) {
        return kItemMark.size();
    }
    std::size_t digits = 0;
    while (digits < line.size() && std::isdigit(static_cast<unsigned char>(line[digits]))) {
        ++digits;
    }
    return digits > 0 && line.substr(digits).starts_with(". ") ? digits + 2 : 0;
}

/// Takes a topic's lines one by one; a paragraph ends where another thing begins.
class CPage {
public:
    explicit CPage(const HelpTopic& topic) { Add(Kind::Title, topic.title); }

    void Take(std::string_view line) {
        if (!line.starts_with('|')) {
            m_columns.clear();
        }
        if (line.empty()) {
            Finish();
        } else if (line.starts_with(kHeadingMark)) {
            Finish();
            Add(Kind::Heading, line.substr(kHeadingMark.size()));
        } else if (line.starts_with('|')) {
            Finish();
            TakeRow(SplitCells(line));
        } else {
            TakeText(line);
        }
    }

    std::vector<HelpParagraph> Result() {
        Finish();
        return std::move(m_paragraphs);
    }

private:
    void TakeText(std::string_view line) {
        if (const std::size_t mark = ItemMarkLength(line)) {
            Finish();
            m_kind = Kind::Item;
            m_text = line.starts_with(kItemMark) ? kShownItemMark : line.substr(0, mark);
            m_text += line.substr(mark);
            return;
        }
        m_text += m_text.empty() ? "" : " ";
        m_text += Trim(line);
    }

    // The first row names the columns, and a row of dashes stands below it.
    void TakeRow(const Cells& cells) {
        if (m_columns.empty()) {
            m_columns = cells;
            return;
        }
        if (cells.empty() || cells.front().starts_with("---")) {
            return;
        }
        Add(Kind::Term, cells.front());
        for (std::size_t i = 1; i < cells.size() && i < m_columns.size(); ++i) {
            const bool isNamed = m_columns.size() > 2 && !m_columns[i].empty();
            Add(Kind::Definition, isNamed ? m_columns[i] + ": " + cells[i] : cells[i]);
        }
    }

    void Add(Kind kind, std::string_view text) { m_paragraphs.push_back({kind, SplitRuns(text)}); }

    void Finish() {
        if (!m_text.empty()) {
            Add(m_kind, m_text);
        }
        m_text.clear();
        m_kind = Kind::Text;
    }

    std::vector<HelpParagraph> m_paragraphs;
    Cells m_columns;
    std::string m_text;
    Kind m_kind = Kind::Text;
};

}

std::vector<HelpParagraph> LayOut(const HelpTopic& topic) {
    CPage page(topic);
    std::string_view rest = topic.text;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        page.Take(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return page.Result();
}

}
