#include "simulator/folder/DescriptionNode.h"

#include "simulator/folder/MessageText.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace simulator {

namespace {

std::string ListOf(std::span<const NamedValue> names) {
    std::string list;
    for (const auto& name : names) {
        list += (list.empty() ? "" : ", ") + QuoteForMessage(name.name);
    }
    return list;
}

}

CDescriptionNode CDescriptionNode::Member(const std::string& key) const {
    const auto member = OptionalMember(key);
    if (!member) {
        Child(key, *m_value).Refuse("is missing");
    }
    return *member;
}

std::optional<CDescriptionNode> CDescriptionNode::OptionalMember(const std::string& key) const {
    ExpectObject();
    const auto found = m_value->find(key);
    if (found == m_value->end()) {
        return std::nullopt;
    }
    return Child(key, *found);
}

std::string CDescriptionNode::OptionalText(const std::string& key) const {
    const auto member = OptionalMember(key);
    return member ? member->Text() : std::string();
}

void CDescriptionNode::ExpectKeys(std::initializer_list<std::string_view> keys) const {
    ForEachMember([&](const std::string& key, const CDescriptionNode& member) {
        if (std::find(keys.begin(), keys.end(), key) == keys.end()) {
            member.Refuse("is not a known key");
        }
    });
}

void CDescriptionNode::ForEachMember(
    const std::function<void(const std::string&, const CDescriptionNode&)>& visit) const {
    ExpectObject();
    for (const auto& [key, value] : m_value->items()) {
        visit(key, Child(key, value));
    }
}

void CDescriptionNode::ForEachElement(
    const std::function<void(const CDescriptionNode&)>& visit) const {
    if (!m_value->is_array()) {
        Refuse("must be a list");
    }
    for (std::size_t index = 0; index < m_value->size(); ++index) {
        visit(Child("[" + std::to_string(index) + "]", (*m_value)[index]));
    }
}

std::string CDescriptionNode::Text() const {
    if (!m_value->is_string()) {
        Refuse("must be a text");
    }
    return m_value->get<std::string>();
}

bool CDescriptionNode::Flag() const {
    if (!m_value->is_boolean()) {
        Refuse("must be true or false");
    }
    return m_value->get<bool>();
}

std::int64_t CDescriptionNode::WholeNumber(std::int64_t lowest, std::int64_t highest) const {
    // Unsigned values beyond the signed range would come out negative.
    const bool fits = !m_value->is_number_unsigned() ||
                      m_value->get<std::uint64_t>() <= static_cast<std::uint64_t>(highest);
    if (m_value->is_number_integer() && fits) {
        const auto number = m_value->get<std::int64_t>();
        if (lowest <= number && number <= highest) {
            return number;
        }
    }
    Refuse("must be a whole number from " + std::to_string(lowest) + " to " +
           std::to_string(highest));
}

std::int64_t CDescriptionNode::NameOrNumber(std::span<const NamedValue> names, std::int64_t lowest,
                                            std::int64_t highest) const {
    if (m_value->is_number()) {
        return WholeNumber(lowest, highest);
    }
    if (m_value->is_string()) {
        for (const auto& [name, value] : names) {
            if (m_value->get_ref<const std::string&>() == name) {
                return value;
            }
        }
    }
    Refuse("must be one of " + ListOf(names) + " or a whole number");
}

void CDescriptionNode::Refuse(const std::string& reason) const {
    auto line = m_document->lines.LineOf(m_path);
    if (line == 0) {
        // What is missing has no line of its own: it is missing in the object around it.
        line = m_document->lines.LineOf({m_path.begin(), m_path.end() - 1});
    }
    throw DescriptionError{m_document->file, line, QuotedName() + " " + reason};
}

CDescriptionNode CDescriptionNode::Child(const std::string& step,
                                         const nlohmann::json& value) const {
    auto path = m_path;
    path.push_back(step);
    return {*m_document, value, std::move(path)};
}

void CDescriptionNode::ExpectObject() const {
    if (!m_value->is_object()) {
        Refuse("must be an object");
    }
}

}
