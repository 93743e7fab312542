#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// The way to a JSON value from the outermost one: the keys of members, and "[3]" for elements.
using JsonPath = std::vector<std::string>;

/// `path` as messages show it: "files[3].type".
std::string NameOf(const JsonPath& path);

/// Quotes `text` as JSON does, so that a line break in it does not break a message into two lines.
std::string QuoteForMessage(std::string_view text);

/// Where the values of a JSON text stand: the parser gives positions for syntax errors only, and
/// errors of meaning need them as well.
class CJsonLines {
public:
    /// Reads `text`, which must be JSON that has been parsed successfully.
    explicit CJsonLines(const std::string& text);

    /// Line, from 1, on which the value begins; 0 for a path that leads to none.
    std::size_t LineOf(const JsonPath& path) const;

    /// The first member that is given twice in one object, and the line of its second key; empty
    /// when there is none. (The parser would keep the last of them and say nothing.)
    const JsonPath& Duplicate() const { return m_duplicate; }
    std::size_t DuplicateLine() const { return m_duplicateLine; }

private:
    friend class CLineRecorder;

    std::map<JsonPath, std::size_t> m_lines;
    JsonPath m_duplicate;
    std::size_t m_duplicateLine = 0;
};

}
