#pragma once

#include "component/win32/com/ComApi.h"

#include <filesystem>
#include <memory>
#include <type_traits>

namespace support {

/// The component, loaded by a host that knows where its file is; nothing needs to be registered. It
/// stays loaded, whatever still lives in it, until this ends.
class CLoadedComponent {
public:
    /// Throws std::runtime_error when it cannot be loaded.
    explicit CLoadedComponent(const std::filesystem::path& file);

    HRESULT Register() const { return Call("DllRegisterServer"); }
    HRESULT Unregister() const { return Call("DllUnregisterServer"); }
    HRESULT CanUnloadNow() const { return Call("DllCanUnloadNow"); }
    HRESULT GetClassObject(REFCLSID classIdentifier, REFIID interfaceIdentifier,
                           void** result) const;

    /// Both throw std::runtime_error when there is none.
    component::ComPtr<IClassFactory> Factory() const;
    component::ComPtr<IUnknown> CreateControl() const;

private:
    struct LibraryEnd {
        void operator()(HMODULE library) const { FreeLibrary(library); }
    };

    template <class Function>
    Function* Find(const char* name) const;
    HRESULT Call(const char* name) const;

    const std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryEnd> m_library;
};

}
