#pragma once

#include "component/win32/com/ComObject.h"

namespace component {

/// Makes controls, which cannot be aggregated.
class CClassFactory final : public IClassFactory {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override;
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID identifier,
                                             void** result) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

    KRX8_COUNTED_REFERENCES(CClassFactory)
};

}
