#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace registry {

/// Keys by path, in the order of the file; each key's values by name, texts and unsigned 32-bit
/// numbers.
using Settings = nlohmann::ordered_json;

/// Reads the text of a settings file. Returns what is wrong with it, `settings` then being
/// untouched; nothing when it is sound.
std::string ParseSettings(const std::string& text, Settings& settings);

/// The text of a settings file, for people to read and change; empty when something in `settings`
/// is not UTF-8.
std::string FormatSettings(const Settings& settings);

}
