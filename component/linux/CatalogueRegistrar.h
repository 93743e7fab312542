#pragma once

#include "frontend/registry/SettingsFile.h"
#include "panel/registration/ComponentRegistration.h"

#include <string>

namespace component {

/// Registers in the machine's catalogue, the part of its settings file that stands for
/// HKEY_CLASSES_ROOT (docs/registry.md). All steps handed over together become one change of the
/// file. There are no type libraries outside Windows.
class CCatalogueRegistrar final : public panel::IRegistrar {
public:
    CCatalogueRegistrar(const std::string& file, registry::TraceSink trace)
        : m_file(file, std::move(trace)) {}

    contract::Status Apply(std::span<const panel::RegistryStep> steps) override;
    contract::Status RegisterTypeLibrary() override { return contract::kSuccess; }
    contract::Status UnregisterTypeLibrary() override { return contract::kSuccess; }
    contract::Status RegisterCategory(const contract::Guid& identifier, std::uint32_t locale,
                                      std::string_view description) override;

private:
    const registry::CSettingsFile m_file;
};

}
