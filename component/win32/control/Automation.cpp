#include "component/win32/control/Automation.h"

#include "component/win32/com/Identifiers.h"
#include "component/win32/com/TypeLibrary.h"
#include "panel/registration/ComponentIdentity.h"

#include <algorithm>
#include <array>

namespace component {

HRESULT CAutomation::GetTypeInfoCount(UINT* count) {
    return count ? (*count = 1, S_OK) : E_POINTER;
}

HRESULT CAutomation::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
    if (!info) {
        return E_POINTER;
    }
    *info = nullptr;
    return Enter([&] {
        return index == 0 ? FindTypeInfo(__uuidof(IKRX8Maintenance), info) : DISP_E_BADINDEX;
    });
}

HRESULT CAutomation::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                   DISPID* numbers) {
    return Enter(
        [&] { return FindNames(__uuidof(IKRX8Maintenance), reserved, names, count, numbers); });
}

HRESULT CAutomation::Invoke(DISPID number, REFIID reserved, LCID, WORD flags,
                            DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                            UINT* argument) {
    return Enter([&] {
        return InvokeByNumber(static_cast<IKRX8Maintenance*>(this), __uuidof(IKRX8Maintenance),
                              number, reserved, flags, parameters, result, exception, argument);
    });
}

HRESULT CAutomation::get_DeviceType(LONG* type) {
    if (!type) {
        return E_POINTER;
    }
    return Enter([&] { return *type = static_cast<LONG>(m_state.deviceType), S_OK; });
}

HRESULT CAutomation::get_DeviceMode(LONG* mode) {
    if (!mode) {
        return E_POINTER;
    }
    return Enter([&] { return *mode = static_cast<LONG>(m_state.deviceMode), S_OK; });
}

HRESULT CClassInfo::GetClassInfo(ITypeInfo** info) {
    if (!info) {
        return E_POINTER;
    }
    *info = nullptr;
    return Enter([&] { return FindTypeInfo(ToGuid(panel::kMaintenanceClass), info); });
}

HRESULT CClassInfo::GetGUID(DWORD, GUID* identifier) {
    return identifier ? (*identifier = GUID_NULL, E_FAIL) : E_POINTER;
}

HRESULT CErrorInfoSupport::InterfaceSupportsErrorInfo(REFIID identifier) {
    const std::array supported{__uuidof(IKRX8Maintenance), __uuidof(IContextMember),
                               __uuidof(IConnectionClient), __uuidof(ISetSubsystemAccess),
                               __uuidof(IGoClient)};
    return std::ranges::find(supported, identifier) != supported.end() ? S_OK : S_FALSE;
}

}
