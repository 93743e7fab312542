#include "panel/registration/RegistrySteps.h"

#include <string_view>

namespace panel {

namespace {

constexpr std::string_view kModule = "%MODULE%";

using Kind = RegistryStep::Kind;
using Steps = std::vector<RegistryStep>;

std::string Below(const std::string& parent, const std::string& name) {
    return parent.empty() ? name : parent + "\\" + name;
}

std::string WithModule(std::string text, const std::string& module) {
    const std::size_t place = text.find(kModule);
    return place == std::string::npos ? text : text.replace(place, kModule.size(), module);
}

void Register(const ScriptKey& key, const std::string& path, const std::string& module,
              Steps& steps) {
    if (key.isRenewed) {
        steps.push_back({Kind::RemoveKey, path});
    }
    if (key.text) {
        steps.push_back({Kind::WriteText, path, {}, WithModule(*key.text, module)});
    } else {
        steps.push_back({Kind::CreateKey, path});
    }
    for (const ScriptValue& value : key.values) {
        steps.push_back({Kind::WriteText, path, value.name, WithModule(value.text, module)});
    }
    for (const ScriptKey& child : key.keys) {
        Register(child, Below(path, child.name), module, steps);
    }
}

void Unregister(const ScriptKey& parent, const std::string& path, Steps& steps) {
    for (const ScriptKey& key : parent.keys) {
        const std::string place = Below(path, key.name);
        if (key.isKept) {
            Unregister(key, place, steps);
        } else {
            steps.push_back({Kind::RemoveKey, place});
        }
    }
}

}

Steps RegistrationSteps(const ScriptKey& root, const std::string& module) {
    Steps steps;
    for (const ScriptKey& key : root.keys) {
        Register(key, key.name, module, steps);
    }
    return steps;
}

Steps UnregistrationSteps(const ScriptKey& root) {
    Steps steps;
    Unregister(root, {}, steps);
    return steps;
}

}
