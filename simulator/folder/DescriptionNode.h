#pragma once

#include "simulator/DescriptionError.h"
#include "simulator/folder/JsonLines.h"
#include "simulator/folder/NamedValue.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace simulator {

/// A JSON document and the file it came from.
struct DescriptionDocument {
    std::filesystem::path file;
    nlohmann::json root;
    CJsonLines lines;
};

/// One value of a device description, and how it is read: each reading either yields a value that
/// is right or throws a DescriptionError that names the key, its line and what would be right. The
/// exceptions end in the functions of simulator/DeviceFolder.h. The document outlives the node.
class CDescriptionNode {
public:
    explicit CDescriptionNode(const DescriptionDocument& document)
        : CDescriptionNode(document, document.root, {}) {}

    /// A member of an object. Member: refused when it is missing.
    CDescriptionNode Member(const std::string& key) const;
    std::optional<CDescriptionNode> OptionalMember(const std::string& key) const;
    /// An absent text is an empty one.
    std::string OptionalText(const std::string& key) const;

    /// Refuses every member that is not in `keys`, and anything that is not an object.
    void ExpectKeys(std::initializer_list<std::string_view> keys) const;
    /// Refuses anything that is not an object, then visits the members in the order of their
    /// names.
    void ForEachMember(
        const std::function<void(const std::string&, const CDescriptionNode&)>& visit) const;
    /// Refuses anything that is not a list, then visits its elements.
    void ForEachElement(const std::function<void(const CDescriptionNode&)>& visit) const;

    std::string Text() const;
    bool Flag() const;
    std::int64_t WholeNumber(std::int64_t lowest, std::int64_t highest) const;
    /// A number of that type, or one of the names.
    template <class Number>
    Number NameOrNumber(std::span<const NamedValue> names) const {
        return static_cast<Number>(NameOrNumber(names, std::numeric_limits<Number>::min(),
                                                std::numeric_limits<Number>::max()));
    }
    template <class Number>
    Number WholeNumberOf() const {
        return static_cast<Number>(
            WholeNumber(std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()));
    }

    /// The value's place as the messages name it: "files[3].type", with the quotes.
    std::string QuotedName() const { return QuotedNameOf(m_path); }

    /// Throws the error that this value is wrong; `reason` goes after its quoted name. Names that
    /// the description gives go into it by QuoteForMessage only.
    [[noreturn]] void Refuse(const std::string& reason) const;

private:
    CDescriptionNode(const DescriptionDocument& document, const nlohmann::json& value,
                     JsonPath path)
        : m_document(&document), m_value(&value), m_path(std::move(path)) {}

    CDescriptionNode Child(const std::string& step, const nlohmann::json& value) const;
    void ExpectObject() const;
    std::int64_t NameOrNumber(std::span<const NamedValue> names, std::int64_t lowest,
                              std::int64_t highest) const;

    const DescriptionDocument* m_document;
    const nlohmann::json* m_value;
    JsonPath m_path;
};

}
