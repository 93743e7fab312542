#include "tests/pictures/win32/Component.h"

#include "component/win32/com/Identifiers.h"
#include "panel/registration/ComponentIdentity.h"

#include <stdexcept>

namespace pictures {

CComponent::CComponent(const std::filesystem::path& file) : m_library(LoadLibraryW(file.c_str())) {
    if (!m_library) {
        throw std::runtime_error(file.string() + ": cannot be loaded");
    }
    const auto getClassObject = reinterpret_cast<decltype(&DllGetClassObject)>(
        reinterpret_cast<void*>(GetProcAddress(m_library.get(), "DllGetClassObject")));
    if (!getClassObject || FAILED(getClassObject(component::ToGuid(panel::kMaintenanceClass),
                                                 IID_PPV_ARGS(m_factory.GetAddressOf())))) {
        throw std::runtime_error(file.string() + ": has no class factory");
    }
}

component::ComPtr<IOleObject> CComponent::MakeControl() const {
    component::ComPtr<IOleObject> control;
    if (FAILED(m_factory->CreateInstance(nullptr, IID_PPV_ARGS(control.GetAddressOf())))) {
        throw std::runtime_error("the component makes no control");
    }
    return control;
}

}
