#pragma once

#include "component/win32/com/ComApi.h"
#include "panel/registration/ComponentRegistration.h"

#include <string>

namespace component {

/// Registers in the system's registry, below HKEY_CLASSES_ROOT. Type library and categories are the
/// system's own managers' to write.
class CSystemRegistrar final : public panel::IRegistrar {
public:
    explicit CSystemRegistrar(std::wstring module) : m_module(std::move(module)) {}

    contract::Status Apply(std::span<const panel::RegistryStep> steps) override;
    contract::Status RegisterTypeLibrary() override;
    contract::Status UnregisterTypeLibrary() override;
    contract::Status RegisterCategory(const contract::Guid& identifier, std::uint32_t locale,
                                      std::string_view description) override;

private:
    const std::wstring m_module;
};

}
