#pragma once

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace workstation {

/// What the command line asks for. An empty path means that the option was not given.
struct Options {
    std::filesystem::path device;
    std::filesystem::path devices;
    std::filesystem::path snapshot;
    std::filesystem::path fallback;
    bool text = false;
    bool help = false;
};

/// Why a command line is refused: one line without the program's name.
struct CommandLineError {
    std::string reason;
};

/// Reads the arguments after the program's name. Values stand in the next argument or after "=";
/// the last of a repeated option counts.
std::variant<Options, CommandLineError> ParseCommandLine(const std::vector<std::string>& arguments);

/// What --help prints.
const char* HelpText();

}
