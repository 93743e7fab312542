#include "panel/registration/ComponentRegistration.h"

#include "panel/control/Utf8.h"

namespace panel {

using contract::Status;

Status RegisterComponent(IRegistrar& registrar, std::string_view script,
                         const std::string& module) {
    const auto root = ParseRegistryScript(script);
    if (!root) {
        return contract::kUnspecifiedFailure;
    }
    Status status = registrar.Apply(RegistrationSteps(*root, module));
    if (status.IsSuccess()) {
        status = registrar.RegisterTypeLibrary();
    }
    if (status.IsFailure()) {
        return status;
    }
    RegisterCategories(registrar, ComponentCategories());
    return contract::kSuccess;
}

void RegisterCategories(IRegistrar& registrar, std::span<const ComponentCategory> categories) {
    for (const ComponentCategory& category : categories) {
        // One that cannot be registered is no reason to go without the others, or the component.
        static_cast<void>(registrar.RegisterCategory(
            category.identifier, kCategoryLocale,
            CutToUtf16Units(category.description, kLongestCategoryDescription)));
    }
}

Status UnregisterComponent(IRegistrar& registrar, std::string_view script) {
    const auto root = ParseRegistryScript(script);
    const Status status =
        root ? registrar.Apply(UnregistrationSteps(*root)) : contract::kUnspecifiedFailure;
    const Status ofTypeLibrary = registrar.UnregisterTypeLibrary();
    return status.IsFailure() ? status : ofTypeLibrary;
}

}
