#include "component/linux/CatalogueRegistrar.h"

#include "contract/ErrorInfo.h"
#include "contract/GuidText.h"
#include "frontend/registry/Catalogue.h"
#include "frontend/registry/SystemError.h"
#include "panel/control/Registry.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>

namespace component {

using contract::Status;
using panel::RegistryStep;
using registry::Settings;

namespace {

struct Reason {
    int error;
    const char* text;
};

constexpr Reason kReasons[] = {
    {registry::kPathNotFound, "something on the way to it is not a folder"},
    {registry::kAccessDenied, "you may not write there"},
    {registry::kInvalidData, "it is damaged"},
    {registry::kDiskFull, "there is no room left"},
};

// The registry's error numbers become statuses as on Windows (HRESULT_FROM_WIN32 of winerror.h).
Status FromErrorNumber(int error) {
    if (error == panel::kRegistrySuccess) {
        return contract::kSuccess;
    }
    const auto* reason = std::ranges::find(kReasons, error, &Reason::error);
    if (reason != std::end(kReasons)) {
        contract::SetErrorInfo(reason->text);
    }
    return Status::FromBits(0x80070000U | static_cast<std::uint32_t>(error));
}

void RemoveKey(Settings& settings, const std::string& key) {
    for (auto entry = settings.begin(); entry != settings.end();) {
        const std::string& path = entry.key();
        const bool isBelow = path == key || path.starts_with(key + "/");
        entry = isBelow ? settings.erase(entry) : std::next(entry);
    }
}

void CreateKey(Settings& settings, const std::string& key) {
    if (!settings.contains(key)) {
        settings[key] = Settings::object();
    }
}

void Carry(Settings& settings, const RegistryStep& step) {
    const std::string key = registry::CatalogueKey(step.key);
    switch (step.kind) {
    case RegistryStep::Kind::RemoveKey:
        RemoveKey(settings, key);
        break;
    case RegistryStep::Kind::CreateKey:
        CreateKey(settings, key);
        break;
    case RegistryStep::Kind::WriteText:
        CreateKey(settings, key);
        settings[key][step.name] = step.text;
        break;
    }
}

}

Status CCatalogueRegistrar::Apply(std::span<const RegistryStep> steps) {
    return FromErrorNumber(m_file.Change([&](Settings& settings) {
        for (const RegistryStep& step : steps) {
            Carry(settings, step);
        }
    }));
}

// As the manager of component categories of Windows keeps them: the description is a value named
// after the language in hexadecimal.
Status CCatalogueRegistrar::RegisterCategory(const contract::Guid& identifier, std::uint32_t locale,
                                             std::string_view description) {
    std::array<char, 9> language;
    std::snprintf(language.data(), language.size(), "%x", static_cast<unsigned>(locale));
    const RegistryStep step{RegistryStep::Kind::WriteText,
                            "Component Categories\\" + contract::FormatGuid(identifier),
                            language.data(), std::string(description)};
    return Apply({&step, 1});
}

}
