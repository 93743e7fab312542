// What the library exports; see contract/panel/PanelFactory.h.

#include "component/linux/CatalogueRegistrar.h"
#include "component/linux/EntryCall.h"
#include "component/linux/PanelFactory.h"
#include "frontend/qt/ComponentFolder.h"
#include "frontend/registry/FileRegistry.h"
#include "panel/registration/ComponentIdentity.h"
#include "panel/registration/RegistrationScript.h"

namespace component {

namespace {

CModuleUse& Module() {
    static CModuleUse module;
    return module;
}

CCatalogueRegistrar MakeRegistrar() {
    return {registry::FindRegistryFile(), [](const std::string&) {}};
}

}

}

#define KRX8_EXPORT extern "C" __attribute__((visibility("default")))

KRX8_EXPORT std::int32_t DllRegisterServer() noexcept {
    return component::Guarded([] {
        auto registrar = component::MakeRegistrar();
        return panel::RegisterComponent(registrar, panel::kRegistrationScript,
                                        qt::FindComponentFile());
    });
}

KRX8_EXPORT std::int32_t DllUnregisterServer() noexcept {
    return component::Guarded([] {
        auto registrar = component::MakeRegistrar();
        return panel::UnregisterComponent(registrar, panel::kRegistrationScript);
    });
}

KRX8_EXPORT std::int32_t
DllGetClassObject(const contract::Guid& classIdentifier,
                  std::shared_ptr<contract::IPanelFactory>& factory) noexcept {
    return component::Guarded([&] {
        if (classIdentifier != panel::kMaintenanceClass) {
            return contract::kClassNotAvailable;
        }
        factory = std::make_shared<component::CPanelFactory>(component::Module());
        return contract::kSuccess;
    });
}

KRX8_EXPORT std::int32_t DllCanUnloadNow() noexcept {
    return (component::Module().IsInUse() ? contract::kStillInUse : contract::kSuccess).Code();
}
