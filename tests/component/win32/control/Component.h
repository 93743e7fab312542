#pragma once

#include "component/win32/com/ComApi.h"

namespace controltests {

using component::ComPtr;

/// The library under test, loaded by a host that knows where it is.
class CComponent {
public:
    CComponent();
    ~CComponent();
    CComponent(const CComponent&) = delete;
    CComponent& operator=(const CComponent&) = delete;

    HRESULT GetClassObject(REFCLSID classIdentifier, REFIID identifier, void** result) const;
    ComPtr<IClassFactory> Factory() const;
    ComPtr<IUnknown> CreateControl() const;
    bool CanUnload() const;

private:
    template <class Function>
    Function* Find(const char* name) const;

    HMODULE m_module;
};

/// The class of the control.
CLSID MaintenanceClass();

}
