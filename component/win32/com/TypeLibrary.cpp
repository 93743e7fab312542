#include "component/win32/com/TypeLibrary.h"

#include "frontend/win32/Module.h"

namespace component {

HRESULT LoadTypeLibrary(ITypeLib** library) {
    return LoadTypeLibEx(win32::OwnModuleFile().c_str(), REGKIND_NONE, library);
}

HRESULT FindTypeInfo(REFGUID identifier, ITypeInfo** info) {
    ComPtr<ITypeLib> library;
    const HRESULT result = LoadTypeLibrary(library.GetAddressOf());
    return FAILED(result) ? result : library->GetTypeInfoOfGuid(identifier, info);
}

HRESULT FindNames(REFIID interfaceIdentifier, REFIID reserved, LPOLESTR* names, UINT count,
                  DISPID* numbers) {
    if (reserved != IID_NULL) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    if (!names || !numbers) {
        return E_POINTER;
    }
    ComPtr<ITypeInfo> info;
    const HRESULT result = FindTypeInfo(interfaceIdentifier, info.GetAddressOf());
    return FAILED(result) ? result : info->GetIDsOfNames(names, count, numbers);
}

HRESULT InvokeByNumber(void* object, REFIID interfaceIdentifier, DISPID number, REFIID reserved,
                       WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                       UINT* argument) {
    if (reserved != IID_NULL) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    if (!parameters) {
        return E_POINTER;
    }
    ComPtr<ITypeInfo> info;
    const HRESULT status = FindTypeInfo(interfaceIdentifier, info.GetAddressOf());
    return FAILED(status)
               ? status
               : info->Invoke(object, number, flags, parameters, result, exception, argument);
}

}
