#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace simulator {

/// The way to a JSON value from the outermost one: the keys of members, and "[3]" for elements.
using JsonPath = std::vector<std::string>;

/// `path` as messages show it: "files[3].type" with its quotes, or "the description" without any
/// for the outermost value.
std::string QuotedNameOf(const JsonPath& path);

/// What is wrong with a text, whatever its values are to mean.
struct JsonMistake {
    /// From 1.
    std::size_t line;
    /// On one line.
    std::string reason;

    bool operator==(const JsonMistake&) const = default;
};

/// Where the values of a JSON text stand: the parser gives positions for syntax errors only, and
/// errors of meaning need them as well.
///
/// Takes time and memory in proportion to the text, so that no text can make it slow.
class CJsonLines {
public:
    /// Reads `text` up to its first mistake. A mistake is what is not JSON, a number that no
    /// floating-point number holds, a member that is given twice in one object (the parser would
    /// keep the last and say nothing), and more than 8 levels of objects and lists, of which a
    /// description needs 3.
    explicit CJsonLines(std::string_view text);

    /// None when the whole text has been read; it can then be parsed.
    const std::optional<JsonMistake>& Mistake() const { return m_mistake; }

    /// Line, from 1, on which the value begins; 0 for a path that leads to none.
    std::size_t LineOf(const JsonPath& path) const;

private:
    friend class CLineRecorder;

    /// A value is found by the number of the value around it, 0 for none, and its step from there.
    using Place = std::pair<std::size_t, std::string>;
    struct Value {
        std::size_t number;
        std::size_t line;
    };

    std::map<Place, Value> m_values;
    std::optional<JsonMistake> m_mistake;
};

}
