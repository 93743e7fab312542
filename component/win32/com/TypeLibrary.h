#pragma once

#include "component/win32/com/ComApi.h"

namespace component {

/// The type library is a resource of the program or library with this code, so that nothing here
/// depends on its being registered.
HRESULT LoadTypeLibrary(ITypeLib** library);
/// The type information of an interface that it describes.
HRESULT FindTypeInfo(REFGUID identifier, ITypeInfo** info);

/// What an object's dual interface answers for the names of its members and to calls by number.
/// DISP_E_UNKNOWNINTERFACE when `reserved` is not IID_NULL, E_POINTER when a pointer is null that
/// they need.
HRESULT FindNames(REFIID interfaceIdentifier, REFIID reserved, LPOLESTR* names, UINT count,
                  DISPID* numbers);
HRESULT InvokeByNumber(void* object, REFIID interfaceIdentifier, DISPID number, REFIID reserved,
                       WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                       UINT* argument);

}
