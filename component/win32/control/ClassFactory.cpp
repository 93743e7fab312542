#include "component/win32/control/ClassFactory.h"

#include "component/win32/com/ComCall.h"
#include "component/win32/control/Control.h"

namespace component {

HRESULT CClassFactory::QueryInterface(REFIID identifier, void** result) {
    return AnswerQuery<IClassFactory>(this, identifier, result);
}

HRESULT CClassFactory::CreateInstance(IUnknown* outer, REFIID identifier, void** result) {
    if (!result) {
        return E_POINTER;
    }
    *result = nullptr;
    if (outer) {
        return CLASS_E_NOAGGREGATION;
    }
    return Guarded(IID_IClassFactory,
                   [&] { return CControl::Create()->QueryInterface(identifier, result); });
}

HRESULT CClassFactory::LockServer(BOOL lock) {
    if (lock) {
        Module().Lock();
        return S_OK;
    }
    return Module().Unlock() ? S_OK : E_FAIL;
}

}
