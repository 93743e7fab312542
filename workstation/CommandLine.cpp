#include "workstation/CommandLine.h"

#include "simulator/folder/MessageText.h"
#include "workstation/HelpText.h"

#include <optional>
#include <string_view>

namespace workstation {

namespace {

struct ValueOption {
    std::string_view name;
    std::filesystem::path Options::*value;
};
constexpr ValueOption kValueOptions[] = {
    {"--device", &Options::device},
    {"--devices", &Options::devices},
    {"--snapshot", &Options::snapshot},
    {"--fallback", &Options::fallback},
};

struct FlagOption {
    std::string_view name;
    bool Options::*flag;
};
constexpr FlagOption kFlagOptions[] = {{"--text", &Options::text}, {"--help", &Options::help}};

class CParser {
public:
    explicit CParser(const std::vector<std::string>& arguments) : m_arguments(arguments) {}

    std::variant<Options, CommandLineError> Parse() {
        while (m_next < m_arguments.size()) {
            if (auto reason = ParseOption(m_arguments[m_next++])) {
                return CommandLineError{*reason};
            }
        }
        return m_options;
    }

private:
    using Reason = std::optional<std::string>;

    Reason ParseOption(const std::string& argument) {
        for (const FlagOption& option : kFlagOptions) {
            if (argument == option.name) {
                m_options.*option.flag = true;
                return {};
            }
        }
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        for (const ValueOption& option : kValueOptions) {
            if (name == option.name) {
                return ParseValue(option, argument, equals);
            }
        }
        const bool isOption = argument.starts_with('-');
        return (isOption ? "unknown option '" : "unexpected argument '") +
               simulator::EscapeForMessage(argument) + "'";
    }

    Reason ParseValue(const ValueOption& option, const std::string& argument, std::size_t equals) {
        const bool isAttached = equals != std::string::npos;
        if (!isAttached && m_next == m_arguments.size()) {
            return "option " + argument + " needs a value";
        }
        const std::string value = isAttached ? argument.substr(equals + 1) : m_arguments[m_next++];
        if (value.empty()) {
            return "option " + std::string(option.name) + " has an empty value";
        }
        m_options.*option.value = value;
        return {};
    }

    const std::vector<std::string>& m_arguments;
    std::size_t m_next = 0;
    Options m_options;
};

}

std::variant<Options, CommandLineError>
ParseCommandLine(const std::vector<std::string>& arguments) {
    return CParser(arguments).Parse();
}

const char* HelpText() { return kHelpText; }

}
