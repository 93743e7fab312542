#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace panel {

/// A named text of a key in a registry script.
struct ScriptValue {
    std::string name;
    std::string text;
};

/// A key in a registry script, with what belongs below it.
struct ScriptKey {
    std::string name;
    bool isKept = false;                  ///< NoRemove: stays when the component is unregistered
    bool isRenewed = false;               ///< ForceRemove: removed whole before it is written
    std::optional<std::string> text = {}; ///< the default value
    std::vector<ScriptValue> values = {};
    std::vector<ScriptKey> keys = {};
};

/// Reads a registry script (the language of Windows' registrar object, in as far as components
/// without numbers need it) and returns its root key. Words are parted by white space; names and
/// texts may stand between apostrophes, a doubled one within stands for itself. Nothing for a text
/// that is none.
std::optional<ScriptKey> ParseRegistryScript(std::string_view script);

}
