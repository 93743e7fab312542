#pragma once

#include "component/win32/com/ComApi.h"

#include <filesystem>
#include <optional>

/// The component as the build has made it, seen from outside.
namespace component {

inline constexpr wchar_t kComponentName[] = L"cmn_krx8maintenanceui.dll";

/// The folder of this program.
std::filesystem::path OwnFolder();
/// The component's full path.
std::filesystem::path ComponentFile();

/// Registers it, or another copy of it, as an administrator does; the status of regsvr32, 0 for a
/// success, nothing when that could not be run.
std::optional<unsigned long> RunRegsvr32(const std::filesystem::path& file = ComponentFile());
std::optional<unsigned long>
RunRegsvr32ToUnregister(const std::filesystem::path& file = ComponentFile());

/// Takes everything that a registration writes out of the registry, categories included.
void ForgetRegistration();

/// Handles messages and has COM unload what it no longer needs until the component has left this
/// process; false when it does not within five seconds.
bool AwaitUnloading();

/// The component, loaded by hand.
class CLoadedComponent {
public:
    explicit CLoadedComponent(const std::filesystem::path& file = ComponentFile());
    ~CLoadedComponent();
    CLoadedComponent(const CLoadedComponent&) = delete;
    CLoadedComponent& operator=(const CLoadedComponent&) = delete;

    HRESULT Register() const { return Call("DllRegisterServer"); }
    HRESULT Unregister() const { return Call("DllUnregisterServer"); }
    HRESULT CanUnloadNow() const { return Call("DllCanUnloadNow"); }
    HRESULT GetClassObject(REFCLSID classIdentifier, REFIID interfaceIdentifier,
                           void** result) const;

private:
    HRESULT Call(const char* name) const;

    HMODULE m_module;
};

}
