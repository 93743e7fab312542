#include "simulator/device/IniText.h"

#include "simulator/folder/Utf8.h"

#include <SimpleIni.h>

#include <algorithm>
#include <utility>

namespace simulator {

namespace {

constexpr std::size_t kLongestLine = 198;
constexpr std::string_view kSpaces = " \t\v\f\r";

/// Why a line cannot be read; empty when it can.
std::string ReasonAgainst(std::string_view line) {
    if (line.size() > kLongestLine) {
        return "is longer than " + std::to_string(kLongestLine) + " bytes";
    }
    if (!IsUtf8(line)) {
        return "is not UTF-8";
    }
    return line.find('\0') == line.npos ? "" : "holds a zero byte";
}

/// The library would take these for a part of the value.
std::string_view WithoutRemark(std::string_view line) {
    std::size_t space = 0;
    while ((space = line.find_first_of(kSpaces, space)) != line.npos) {
        if (line.substr(++space).starts_with(';')) {
            return line.substr(0, space);
        }
    }
    return line;
}

std::string_view Trimmed(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(kSpaces), line.size()));
    return line.substr(0, line.find_last_not_of(kSpaces) + 1);
}

bool SaysNothing(std::string_view text) {
    return text.empty() || text.front() == ';' || text.front() == '#';
}

/// The library passes over what it does not understand and tells no lines, so that it is given the
/// text line by line.
class CReading {
public:
    explicit CReading(const IniVisitor& visit) : m_visit(visit) {}

    /// What is wrong with the next line; empty when it is good.
    std::string Read(std::string_view line) {
        if (auto reason = ReasonAgainst(line); !reason.empty()) {
            return reason;
        }
        const auto text = Trimmed(WithoutRemark(line));
        return SaysNothing(text) ? "" : ReadStatement(text);
    }

private:
    using Ini = CSimpleIniCaseA;

    std::string ReadStatement(std::string_view text) {
        constexpr bool kIsUtf8 = true;
        Ini ini(kIsUtf8);
        Ini::TNamesDepend sections;
        Ini::TNamesDepend keys;
        // The library would end the line at a carriage return.
        if (text.find('\r') == text.npos && ini.LoadData(text.data(), text.size()) == SI_OK) {
            ini.GetAllSections(sections);
        }
        if (sections.empty()) {
            return kSyntaxMistake;
        }
        const auto* section = sections.front().pItem;
        ini.GetAllKeys(section, keys);
        if (keys.empty()) {
            m_section = section;
            return "";
        }
        const auto* key = keys.front().pItem;
        return m_visit({m_section, key, ini.GetValue(section, key)});
    }

    static constexpr const char* kSyntaxMistake =
        "is neither a section, a \"key = value\" nor a comment";

    const IniVisitor& m_visit;
    std::string m_section;
};

/// Some editors put a byte order mark before a text.
std::string_view WithoutMark(std::string_view text) {
    constexpr std::string_view kMark = SI_UTF8_SIGNATURE;
    return text.starts_with(kMark) ? text.substr(kMark.size()) : text;
}

}

std::optional<IniMistake> ReadIni(std::string_view text, const IniVisitor& visit) {
    CReading reading(visit);
    auto rest = WithoutMark(text);
    for (std::size_t line = 1; !rest.empty(); ++line) {
        const auto end = std::min(rest.find('\n'), rest.size());
        if (auto reason = reading.Read(rest.substr(0, end)); !reason.empty()) {
            return IniMistake{line, std::move(reason)};
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return std::nullopt;
}

}
