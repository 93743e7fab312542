#pragma once

#include "contract/Status.h"
#include "panel/registration/ComponentCategories.h"
#include "panel/registration/RegistrySteps.h"

#include <span>
#include <string>
#include <string_view>

namespace panel {

/// What the registration of a component needs of its platform.
class IRegistrar {
public:
    virtual ~IRegistrar() = default;

    /// Carries out the steps in order, up to the first that fails, and returns its status.
    virtual contract::Status Apply(std::span<const RegistryStep> steps) = 0;
    /// Success where there are no type libraries.
    virtual contract::Status RegisterTypeLibrary() = 0;
    virtual contract::Status UnregisterTypeLibrary() = 0;
    /// Makes a manager of component categories, has it register one and releases it.
    virtual contract::Status RegisterCategory(const contract::Guid& identifier,
                                              std::uint32_t locale,
                                              std::string_view description) = 0;
};

/// Registers the class by `script`, then the type library; where that fails, nothing more, and its
/// status is returned. Then the component categories, whatever becomes of each.
contract::Status RegisterComponent(IRegistrar& registrar, std::string_view script,
                                   const std::string& module);

/// Registers each category, with its description cut to what a manager has room for.
void RegisterCategories(IRegistrar& registrar, std::span<const ComponentCategory> categories);

/// Takes back class and type library; returns the first failure. The categories stay, since other
/// components use them.
contract::Status UnregisterComponent(IRegistrar& registrar, std::string_view script);

}
