#pragma once

#include <optional>
#include <string>

namespace component {

/// Runs a program of the system and waits for its end: its status, or nothing when it does not
/// start or does not end within a minute (it is then ended).
std::optional<unsigned long> RunProcess(std::wstring commandLine);

}
