#pragma once

#include "panel/registration/RegistryScript.h"

#include <string>
#include <vector>

namespace panel {

/// One change of the registry, below HKEY_CLASSES_ROOT. Keys are paths with backslashes.
struct RegistryStep {
    enum class Kind {
        RemoveKey, ///< with everything below it; a key that is not there is no failure
        CreateKey, ///< and those above it
        WriteText  ///< of the value `name`, empty for the default one; makes the key
    };

    Kind kind;
    std::string key;
    std::string name = {};
    std::string text = {};

    friend bool operator==(const RegistryStep&, const RegistryStep&) = default;
};

/// What registers the classes of a script whose component is the file `module`, in order.
/// "%MODULE%" in a text stands for that file.
std::vector<RegistryStep> RegistrationSteps(const ScriptKey& root, const std::string& module);

/// What takes it back: each key goes with everything below it, unless it is to be kept.
std::vector<RegistryStep> UnregistrationSteps(const ScriptKey& root);

}
