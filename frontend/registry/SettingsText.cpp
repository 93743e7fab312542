#include "frontend/registry/SettingsText.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace registry {

namespace {

constexpr int kIndent = 2;

bool IsValue(const Settings& value) {
    return value.is_string() ||
           (value.is_number_unsigned() &&
            value.get<std::uint64_t>() <= std::numeric_limits<std::uint32_t>::max());
}

/// Finds what the parser itself would pass over: of two entries of one name it keeps one, and the
/// other would be gone with the next writing.
class CRepeatFinder {
public:
    bool operator()(int, Settings::parse_event_t event, Settings& parsed) {
        if (event == Settings::parse_event_t::object_start) {
            m_names.emplace_back();
        } else if (event == Settings::parse_event_t::object_end) {
            m_names.pop_back();
        } else if (event == Settings::parse_event_t::key &&
                   !m_names.back().insert(parsed.get<std::string>()).second) {
            m_repeated = parsed.get<std::string>();
        }
        return true;
    }

    /// The name that stands twice, which may be empty; nothing when none does.
    const std::optional<std::string>& Repeated() const { return m_repeated; }

private:
    std::vector<std::set<std::string>> m_names;
    std::optional<std::string> m_repeated;
};

std::string FindFault(const Settings& settings) {
    if (!settings.is_object()) {
        return "it is not an object of keys";
    }
    for (const auto& [path, values] : settings.items()) {
        if (!values.is_object()) {
            return "\"" + path + "\" is not an object of values";
        }
        for (const auto& [name, value] : values.items()) {
            if (!IsValue(value)) {
                return "\"" + name + "\" is neither a text nor an unsigned 32-bit number";
            }
        }
    }
    return {};
}

}

std::string ParseSettings(const std::string& text, Settings& settings) {
    CRepeatFinder repeats;
    Settings parsed;
    try {
        parsed = Settings::parse(text, std::ref(repeats));
    } catch (const Settings::exception& fault) {
        return fault.what();
    }
    if (repeats.Repeated()) {
        return "\"" + *repeats.Repeated() + "\" stands twice";
    }
    std::string fault = FindFault(parsed);
    if (fault.empty()) {
        settings = std::move(parsed);
    }
    return fault;
}

std::string FormatSettings(const Settings& settings) {
    try {
        return settings.dump(kIndent) + "\n";
    } catch (const Settings::type_error&) {
        return {};
    }
}

}
