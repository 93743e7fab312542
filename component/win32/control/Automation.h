#pragma once

#include "component/win32/control/Part.h"
#include "panel/control/PanelState.h"

namespace component {

/// The control for scripts: what it knows of its device.
class CAutomation final : public CPart<IKRX8Maintenance> {
public:
    CAutomation(IControl& control, const panel::PanelState& state)
        : CPart(control), m_state(state) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count,
                                            LCID locale, DISPID* numbers) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID reserved, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* argument) override;
    HRESULT STDMETHODCALLTYPE get_DeviceType(LONG* type) override;
    HRESULT STDMETHODCALLTYPE get_DeviceMode(LONG* mode) override;

private:
    const panel::PanelState& m_state;
};

/// Where a container finds the description of the class. It has no events of its own.
class CClassInfo final : public CPart<IProvideClassInfo2> {
public:
    using CPart::CPart;

    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* identifier) override;
};

/// Says of which interfaces a failing call leaves a description.
class CErrorInfoSupport final : public CPart<ISupportErrorInfo> {
public:
    using CPart::CPart;

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID identifier) override;
};

}
