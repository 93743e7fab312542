#include "simulator/folder/JsonLines.h"

#include <nlohmann/json.hpp>

#include <iterator>
#include <set>
#include <utility>

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

}

/// Receives the parser's events and notes the line of each value.
class CLineRecorder final : public nlohmann::json_sax<nlohmann::json> {
public:
    CLineRecorder(CJsonLines& lines, const Progress& progress)
        : m_lines(lines), m_progress(progress) {}

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
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) override {
        return false;
    }

private:
    struct Container {
        JsonPath path;
        bool isArray;
        std::size_t index = 0;
        std::set<std::string> keys = {};
        std::string key = {};
    };

    std::size_t Line() const { return m_progress.newlines + 1; }
    /// A number ends where the next character is none of it, so that one has been read, too.
    std::size_t LineOfNumber() const { return Line() - (m_progress.isLastNewline ? 1 : 0); }

    JsonPath NextPath();
    bool Scalar(std::size_t line);
    bool Open(bool isArray);
    bool Close();

    CJsonLines& m_lines;
    const Progress& m_progress;
    std::vector<Container> m_open;
};

JsonPath CLineRecorder::NextPath() {
    if (m_open.empty()) {
        return {};
    }
    auto& container = m_open.back();
    auto path = container.path;
    path.push_back(container.isArray ? "[" + std::to_string(container.index++) + "]"
                                     : container.key);
    return path;
}

bool CLineRecorder::Scalar(std::size_t line) {
    m_lines.m_lines[NextPath()] = line;
    return true;
}

bool CLineRecorder::Open(bool isArray) {
    auto path = NextPath();
    m_lines.m_lines[path] = Line();
    m_open.push_back({std::move(path), isArray});
    return true;
}

bool CLineRecorder::Close() {
    m_open.pop_back();
    return true;
}

bool CLineRecorder::key(std::string& name) {
    auto& container = m_open.back();
    container.key = name;
    if (!container.keys.insert(name).second && m_lines.m_duplicateLine == 0) {
        m_lines.m_duplicate = container.path;
        m_lines.m_duplicate.push_back(name);
        m_lines.m_duplicateLine = Line();
    }
    return true;
}

CJsonLines::CJsonLines(const std::string& text) {
    Progress progress;
    CLineRecorder recorder(*this, progress);
    nlohmann::json::sax_parse(CCountingIterator(text.data(), progress),
                              CCountingIterator(text.data() + text.size(), progress), &recorder);
}

std::size_t CJsonLines::LineOf(const JsonPath& path) const {
    const auto found = m_lines.find(path);
    return found == m_lines.end() ? 0 : found->second;
}

std::string NameOf(const JsonPath& path) {
    std::string name;
    for (const auto& step : path) {
        name += (name.empty() || step.starts_with('[') ? "" : ".") + step;
    }
    return name;
}

std::string QuoteForMessage(std::string_view text) { return nlohmann::json(text).dump(); }

}
