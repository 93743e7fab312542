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

HRESULT FindNames(REFIID interfaceIdentifier, LPOLESTR* names, UINT count, DISPID* numbers) {
    ComPtr<ITypeInfo> info;
    const HRESULT result = FindTypeInfo(interfaceIdentifier, info.GetAddressOf());
    return FAILED(result) ? result : info->GetIDsOfNames(names, count, numbers);
}

HRESULT InvokeByNumber(void* object, REFIID interfaceIdentifier, DISPID number, WORD flags,
                       DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                       UINT* argument) {
    ComPtr<ITypeInfo> info;
    const HRESULT status = FindTypeInfo(interfaceIdentifier, info.GetAddressOf());
    return FAILED(status)
               ? status
               : info->Invoke(object, number, flags, parameters, result, exception, argument);
}

}
