#include "tests/support/win32/LoadedComponent.h"

#include "component/win32/com/Contract.h"

#include <stdexcept>
#include <string>

namespace support {

using component::ComPtr;

CLoadedComponent::CLoadedComponent(const std::filesystem::path& file)
    : m_library(LoadLibraryW(file.c_str())) {
    if (!m_library) {
        throw std::runtime_error(file.string() + ": cannot be loaded");
    }
}

HRESULT CLoadedComponent::GetClassObject(REFCLSID classIdentifier, REFIID interfaceIdentifier,
                                         void** result) const {
    return Find<decltype(DllGetClassObject)>("DllGetClassObject")(classIdentifier,
                                                                  interfaceIdentifier, result);
}

ComPtr<IClassFactory> CLoadedComponent::Factory() const {
    ComPtr<IClassFactory> factory;
    if (FAILED(GetClassObject(__uuidof(::KRX8Maintenance), IID_PPV_ARGS(factory.GetAddressOf())))) {
        throw std::runtime_error("the component has no class factory");
    }
    return factory;
}

ComPtr<IUnknown> CLoadedComponent::CreateControl() const {
    ComPtr<IUnknown> control;
    if (FAILED(Factory()->CreateInstance(nullptr, IID_PPV_ARGS(control.GetAddressOf())))) {
        throw std::runtime_error("the component makes no control");
    }
    return control;
}

template <class Function>
Function* CLoadedComponent::Find(const char* name) const {
    const FARPROC function = GetProcAddress(m_library.get(), name);
    if (!function) {
        throw std::runtime_error(std::string("the component exports no ") + name);
    }
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(function));
}

HRESULT CLoadedComponent::Call(const char* name) const {
    return Find<decltype(DllCanUnloadNow)>(name)();
}

}
