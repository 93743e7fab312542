#include "tests/component/win32/control/Component.h"

#include "component/win32/com/Identifiers.h"
#include "panel/registration/ComponentIdentity.h"

#include <gtest/gtest.h>

namespace controltests {

CLSID MaintenanceClass() { return component::ToGuid(panel::kMaintenanceClass); }

CComponent::CComponent() : m_module(LoadLibraryA(KRX8_COMPONENT)) {
    EXPECT_NE(m_module, nullptr) << KRX8_COMPONENT;
}

CComponent::~CComponent() { FreeLibrary(m_module); }

template <class Function>
Function* CComponent::Find(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_module, name)));
}

HRESULT CComponent::GetClassObject(REFCLSID classIdentifier, REFIID identifier,
                                   void** result) const {
    return Find<HRESULT STDMETHODCALLTYPE(REFCLSID, REFIID, void**)>("DllGetClassObject")(
        classIdentifier, identifier, result);
}

ComPtr<IClassFactory> CComponent::Factory() const {
    ComPtr<IClassFactory> factory;
    EXPECT_EQ(GetClassObject(MaintenanceClass(), IID_PPV_ARGS(factory.GetAddressOf())), S_OK);
    return factory;
}

ComPtr<IUnknown> CComponent::CreateControl() const {
    ComPtr<IUnknown> control;
    EXPECT_EQ(Factory()->CreateInstance(nullptr, IID_PPV_ARGS(control.GetAddressOf())), S_OK);
    return control;
}

bool CComponent::CanUnload() const {
    return Find<HRESULT STDMETHODCALLTYPE()>("DllCanUnloadNow")() == S_OK;
}

}
