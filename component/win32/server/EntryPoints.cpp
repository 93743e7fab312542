// What the library exports.

#include "component/win32/com/ComCall.h"
#include "component/win32/com/Identifiers.h"
#include "component/win32/control/ClassFactory.h"
#include "component/win32/control/ControlWindow.h"
#include "component/win32/server/SystemRegistrar.h"
#include "frontend/win32/ActivationContext.h"
#include "frontend/win32/Module.h"
#include "frontend/win32/Text.h"
#include "panel/registration/ComponentIdentity.h"

#include <string_view>

namespace component {

namespace {

/// Of type REGISTRY.
constexpr int kScriptResource = 102;

/// The registry script, a resource of the library.
std::string_view FindScript() {
    const HMODULE module = win32::OwnModule();
    const HRSRC place = FindResourceW(module, MAKEINTRESOURCEW(kScriptResource), L"REGISTRY");
    const HGLOBAL script = place ? LoadResource(module, place) : nullptr;
    return script ? std::string_view(static_cast<const char*>(LockResource(script)),
                                     SizeofResource(module, place))
                  : std::string_view();
}

/// COM for the time of a call: registration programs need not have prepared it.
class CApartment {
public:
    CApartment() : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~CApartment() {
        if (SUCCEEDED(m_result)) {
            CoUninitialize();
        }
    }
    CApartment(const CApartment&) = delete;
    CApartment& operator=(const CApartment&) = delete;

private:
    const HRESULT m_result;
};

}

}

STDAPI DllRegisterServer() {
    const component::CApartment apartment;
    return component::Guarded(IID_NULL, [] {
        const auto module = win32::OwnModuleFile();
        component::CSystemRegistrar registrar(module);
        return panel::RegisterComponent(registrar, component::FindScript(), win32::FromWide(module))
            .Code();
    });
}

STDAPI DllUnregisterServer() {
    const component::CApartment apartment;
    return component::Guarded(IID_NULL, [] {
        component::CSystemRegistrar registrar(win32::OwnModuleFile());
        return panel::UnregisterComponent(registrar, component::FindScript()).Code();
    });
}

STDAPI DllGetClassObject(REFCLSID classIdentifier, REFIID interfaceIdentifier, void** result) {
    if (!result) {
        return E_POINTER;
    }
    *result = nullptr;
    if (component::FromGuid(classIdentifier) != panel::kMaintenanceClass) {
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    return component::Guarded(interfaceIdentifier, [&] {
        return component::MakeCom<component::CClassFactory>()->QueryInterface(interfaceIdentifier,
                                                                              result);
    });
}

STDAPI DllCanUnloadNow() { return component::Module().IsInUse() ? S_FALSE : S_OK; }

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void* isProcessEnding) {
    if (reason == DLL_PROCESS_DETACH && !isProcessEnding) {
        component::ForgetControlWindows();
        win32::ForgetActivationContext();
    }
    return TRUE;
}
