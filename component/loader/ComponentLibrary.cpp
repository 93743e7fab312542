#include "component/loader/ComponentLibrary.h"

#include "frontend/registry/Catalogue.h"
#include "frontend/registry/FileRegistry.h"

#include <dlfcn.h>

#include <array>
#include <cstdio>
#include <variant>

namespace component {

using contract::Status;

namespace {

constexpr const char* kHowToRegister =
    "register the component with: krx8-register FOLDER/cmn_krx8maintenanceui.so";

// The loader's text often begins with the file's name.
[[noreturn]] void Refuse(const std::string& file, const char* text) {
    const std::string reason = text ? text : "unknown reason";
    throw ComponentUnavailable(
        (reason.starts_with(file) ? "cannot load " : "cannot load " + file + ": ") + reason);
}

void* Load(const std::string& file) {
    void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        Refuse(file, dlerror());
    }
    return library;
}

std::string InHexadecimal(Status status) {
    std::array<char, 11> text;
    std::snprintf(text.data(), text.size(), "0x%08x", static_cast<unsigned>(status.Code()));
    return text.data();
}

registry::CatalogueEntry Find(const std::string& programIdentifier) {
    const auto found = registry::FindComponent(registry::FindRegistryFile(), programIdentifier);
    if (const auto* problem = std::get_if<std::string>(&found)) {
        throw ComponentUnavailable(*problem + "; " + kHowToRegister);
    }
    return std::get<registry::CatalogueEntry>(found);
}

}

CComponentLibrary::CComponentLibrary(const std::string& file)
    : m_file(file), m_library(Load(file)) {}

template <class Function>
Function* CComponentLibrary::Find(const char* name) const {
    void* const function = dlsym(m_library, name);
    if (!function) {
        throw ComponentUnavailable(m_file + " is no component: it has no function " + name);
    }
    return reinterpret_cast<Function*>(function);
}

Status CComponentLibrary::Register() const {
    namespace entry = contract::component;
    return Status(Find<entry::RegisterServer>(entry::kRegisterServer)());
}

Status CComponentLibrary::Unregister() const {
    namespace entry = contract::component;
    return Status(Find<entry::RegisterServer>(entry::kUnregisterServer)());
}

Status CComponentLibrary::GetFactory(const contract::Guid& classIdentifier,
                                     std::shared_ptr<contract::IPanelFactory>& factory) const {
    namespace entry = contract::component;
    return Status(Find<entry::GetClassObject>(entry::kGetClassObject)(classIdentifier, factory));
}

Status CComponentLibrary::CanUnloadNow() const {
    namespace entry = contract::component;
    return Status(Find<entry::CanUnloadNow>(entry::kCanUnloadNow)());
}

std::shared_ptr<contract::IPanel> CreatePanel(const std::string& programIdentifier) {
    const registry::CatalogueEntry entry = Find(programIdentifier);
    try {
        const CComponentLibrary library(entry.library);
        std::shared_ptr<contract::IPanelFactory> factory;
        Status status = library.GetFactory(entry.classIdentifier, factory);
        std::shared_ptr<contract::IPanel> panel;
        if (status.IsSuccess() && factory) {
            status = factory->CreatePanel(panel);
        }
        if (!panel) {
            throw ComponentUnavailable(entry.library + " makes no panel (" + InHexadecimal(status) +
                                       ")");
        }
        return panel;
    } catch (const ComponentUnavailable& problem) {
        throw ComponentUnavailable(programIdentifier + ": " + problem.what() +
                                   "; if the component has been moved, " + kHowToRegister);
    }
}

}
