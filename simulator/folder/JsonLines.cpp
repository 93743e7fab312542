#include "simulator/folder/JsonLines.h"

#include "simulator/folder/MessageText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace simulator {

namespace {

/// What the parser has read of the text.
struct Progress {
    std::size_t newlines = 0;
    bool isLastNewline = false;
};

/// Walks over the text for the parser and counts its lines. The parser copies its iterators, hence
/// the count outside.
class CCountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CCountingIterator(const char* position, Progress& progress)
        : m_position(position), m_progress(&progress) {}

    reference operator*() const { return *m_position; }
    CCountingIterator& operator++() {
        m_progress->isLastNewline = *m_position == '\n';
        m_progress->newlines += m_progress->isLastNewline ? 1 : 0;
        ++m_position;
        return *this;
    }
    CCountingIterator operator++(int) {
        const auto before = *this;
        ++*this;
        return before;
    }
    bool operator==(const CCountingIterator& other) const { return m_position == other.m_position; }

private:
    const char* m_position;
    Progress* m_progress;
};

/// Objects and lists inside each other, the outermost one included.
constexpr std::size_t kMostLevels = 8;

/// What the parser says, without its own name, its notion of the place, and the text around the
/// place, which may be anything.
std::string ReasonOf(const nlohmann::json::exception& error, const std::string& lastRead) {
    std::string reason = error.what();
    if (const auto place = reason.find(", column "); place != std::string::npos) {
        reason.erase(0, reason.find(": ", place) + 2);
    }
    const auto context = "; last read: '" + lastRead + "'";
    if (const auto begin = reason.find(context); begin != std::string::npos) {
        reason.erase(begin, context.size());
    }
    return "is not valid JSON: " + reason;
}

}

/// Receives the parser's events and notes the line of each value. Each returns whether to go on.
class CLineRecorder final : public nlohmann::json_sax<nlohmann::json> {
public:
    CLineRecorder(CJsonLines& lines, std::string_view text, const Progress& progress)
        : m_lines(lines), m_text(text), m_progress(progress) {}

    bool null() override { return Scalar(Line()); }
    bool boolean(bool) override { return Scalar(Line()); }
    bool string(std::string&) override { return Scalar(Line()); }
    bool binary(nlohmann::json::binary_t&) override { return Scalar(Line()); }
    bool number_integer(std::int64_t) override { return Scalar(LineOfNumber()); }
    bool number_unsigned(std::uint64_t) override { return Scalar(LineOfNumber()); }
    bool number_float(double, const std::string&) override { return Scalar(LineOfNumber()); }
    bool start_object(std::size_t) override { return Open(false); }
    bool start_array(std::size_t) override { return Open(true); }
    bool end_object() override { return Close(); }
    bool end_array() override { return Close(); }
    bool key(std::string& name) override;
    bool parse_error(std::size_t position, const std::string& lastRead,
                     const nlohmann::json::exception& error) override;

private:
    struct Container {
        std::size_t number;
        bool isArray;
        std::size_t elements = 0;
        /// From here to the value that is being read.
        std::string step = {};
    };

    std::size_t Line() const { return m_progress.newlines + 1; }
    /// A number ends where the next character is none of it, so that one has been read, too.
    std::size_t LineOfNumber() const { return Line() - (m_progress.isLastNewline ? 1 : 0); }

    bool Scalar(std::size_t line);
    bool Open(bool isArray);
    bool Close();
    /// Notes the value that begins, and gives its number.
    std::size_t Note(std::size_t line);
    CJsonLines::Place Place() const;
    /// The quoted name of the value that is being read.
    std::string Name() const;
    bool Stop(std::size_t line, const std::string& reason);

    CJsonLines& m_lines;
    const std::string_view m_text;
    const Progress& m_progress;
    std::vector<Container> m_open;
};

bool CLineRecorder::Scalar(std::size_t line) {
    Note(line);
    return true;
}

bool CLineRecorder::Open(bool isArray) {
    const auto number = Note(Line());
    if (m_open.size() == kMostLevels) {
        return Stop(Line(), Name() + " is nested too deeply: 8 levels are the most");
    }
    m_open.push_back({number, isArray});
    return true;
}

bool CLineRecorder::Close() {
    m_open.pop_back();
    return true;
}

bool CLineRecorder::key(std::string& name) {
    m_open.back().step = name;
    return !m_lines.m_values.contains(Place()) || Stop(Line(), Name() + " is given twice");
}

bool CLineRecorder::parse_error(std::size_t position, const std::string& lastRead,
                                const nlohmann::json::exception& error) {
    // The character at fault is the last one that was read, and its position counts from 1.
    const auto before = m_text.substr(0, position > 0 ? position - 1 : 0);
    const auto line = 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    if (dynamic_cast<const nlohmann::json::out_of_range*>(&error)) {
        Note(line);
        return Stop(line, Name() + " is too large a number");
    }
    return Stop(line, ReasonOf(error, lastRead));
}

std::size_t CLineRecorder::Note(std::size_t line) {
    if (!m_open.empty() && m_open.back().isArray) {
        auto& list = m_open.back();
        list.step = "[" + std::to_string(list.elements++) + "]";
    }
    const auto number = m_lines.m_values.size() + 1;
    m_lines.m_values[Place()] = {number, line};
    return number;
}

CJsonLines::Place CLineRecorder::Place() const {
    return m_open.empty() ? CJsonLines::Place()
                          : CJsonLines::Place(m_open.back().number, m_open.back().step);
}

std::string CLineRecorder::Name() const {
    JsonPath path;
    for (const auto& container : m_open) {
        path.push_back(container.step);
    }
    return QuotedNameOf(path);
}

bool CLineRecorder::Stop(std::size_t line, const std::string& reason) {
    m_lines.m_mistake = {line, reason};
    return false;
}

CJsonLines::CJsonLines(std::string_view text) {
    Progress progress;
    CLineRecorder recorder(*this, text, progress);
    nlohmann::json::sax_parse(CCountingIterator(text.data(), progress),
                              CCountingIterator(text.data() + text.size(), progress), &recorder);
}

std::size_t CJsonLines::LineOf(const JsonPath& path) const {
    auto found = m_values.find({});
    for (const auto& step : path) {
        if (found == m_values.end()) {
            return 0;
        }
        found = m_values.find({found->second.number, step});
    }
    return found == m_values.end() ? 0 : found->second.line;
}

std::string QuotedNameOf(const JsonPath& path) {
    std::string name;
    for (const auto& step : path) {
        name += (name.empty() || step.starts_with('[') ? "" : ".") + step;
    }
    return path.empty() ? "the description" : QuoteForMessage(name);
}

}
