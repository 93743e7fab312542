#pragma once

#include "component/win32/com/Bridge.h"
#include "component/win32/com/ComObject.h"
#include "component/win32/com/Variant.h"
#include "simulator/EventSource.h"
#include "tests/interception/ControlTargets.h"
#include "tests/interception/HostTargets.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace component {

using ConnectionEvents = contract::_IExtConnectionEvents;
using DeviceEvents = contract::_IProgrammingDeviceControlEvents;

/// An object of the contract that raises what `source` does.
template <class Interface, class Events>
std::shared_ptr<interception::CTarget<Interface>>
MakeObjectWith(const std::shared_ptr<simulator::CEventSource<Events>>& source) {
    auto object = interception::MakeTarget<Interface>();
    object->exchange.object = std::shared_ptr<contract::IBaseObject<Events>>(source);
    return object;
}

/// A sink in COM that takes every event and notes it: "2 I4:-3 UI4:9".
class CDispatchDouble final : public IDispatch {
public:
    std::vector<std::string> events;
    /// The interface that it answers for, beside IDispatch.
    IID eventInterface = IID_NULL;
    HRESULT result = S_OK;
    std::function<void()> whileInvoked;
    /// How often it was asked for an interface.
    int queries = 0;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** answer) override {
        ++queries;
        const bool isEvents = identifier != IID_NULL && identifier == eventInterface;
        return AnswerQuery<IDispatch>(this, isEvents ? IID_IDispatch : identifier, answer);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD flags,
                                     DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override {
        EXPECT_EQ(flags, DISPATCH_METHOD);
        EXPECT_EQ(parameters->cNamedArgs, 0u);
        std::string event = std::to_string(number);
        for (UINT index = parameters->cArgs; index > 0; --index) {
            event += ' ' + Describe(parameters->rgvarg[index - 1]);
        }
        events.push_back(event);
        if (whileInvoked) {
            whileInvoked();
        }
        return result;
    }

private:
    static std::string Describe(const VARIANT& value) {
        switch (V_VT(&value)) {
        case VT_I4:
            return "I4:" + std::to_string(V_I4(&value));
        case VT_UI4:
            return "UI4:" + std::to_string(V_UI4(&value));
        case VT_BSTR:
            return "BSTR:" + FromBstr(V_BSTR(&value));
        default:
            return "another type";
        }
    }

    KRX8_COUNTED_REFERENCES(CDispatchDouble)
};

/// A source of one event interface that is written for COM.
class CComSource final : public IConnectionPointContainer, public IConnectionPoint {
public:
    explicit CComSource(REFIID eventInterface) : m_eventInterface(eventInterface) {}

    /// What Advise and Unadvise return instead of doing anything.
    HRESULT failure = S_OK;
    const wchar_t* description = nullptr;
    std::map<DWORD, ComPtr<IDispatch>> sinks;

    HRESULT Raise(DISPID number, std::vector<VARIANT> arguments) {
        DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        const auto raisedTo = sinks;
        HRESULT result = S_FALSE;
        for (const auto& [cookie, sink] : raisedTo) {
            result = sink->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                  &parameters, nullptr, nullptr, nullptr);
        }
        return result;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override {
        if (identifier == IID_IConnectionPoint) {
            return AnswerQuery<IConnectionPoint>(this, identifier, result);
        }
        return AnswerQuery<IConnectionPointContainer>(this, identifier, result);
    }
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID identifier,
                                                  IConnectionPoint** point) override {
        *point = nullptr;
        return identifier == m_eventInterface ? QueryInterface(IID_PPV_ARGS(point))
                                              : CONNECT_E_NOCONNECTION;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override {
        if (FAILED(failure)) {
            return Fail();
        }
        ComPtr<IDispatch> events;
        const HRESULT result =
            sink->QueryInterface(m_eventInterface, reinterpret_cast<void**>(events.GetAddressOf()));
        if (SUCCEEDED(result)) {
            *cookie = ++m_lastCookie;
            sinks[*cookie] = events;
        }
        return result;
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
        if (FAILED(failure)) {
            return Fail();
        }
        return sinks.erase(cookie) == 1 ? S_OK : CONNECT_E_NOCONNECTION;
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

private:
    HRESULT Fail() const {
        if (description) {
            LeaveDescription(description);
        }
        return failure;
    }

    const IID m_eventInterface;
    DWORD m_lastCookie = 0x80000000;

    KRX8_COUNTED_REFERENCES(CComSource)
};

inline VARIANT Long(LONG value) {
    VARIANT variant{};
    V_VT(&variant) = VT_I4;
    V_I4(&variant) = value;
    return variant;
}
inline VARIANT Short(SHORT value) {
    VARIANT variant{};
    V_VT(&variant) = VT_I2;
    V_I2(&variant) = value;
    return variant;
}
inline VARIANT Unsigned(ULONG value) {
    VARIANT variant{};
    V_VT(&variant) = VT_UI4;
    V_UI4(&variant) = value;
    return variant;
}
inline VARIANT Real(double value) {
    VARIANT variant{};
    V_VT(&variant) = VT_R8;
    V_R8(&variant) = value;
    return variant;
}
inline VARIANT ByReference(LONG& value) {
    VARIANT variant{};
    V_VT(&variant) = VT_I4 | VT_BYREF;
    V_I4REF(&variant) = &value;
    return variant;
}
inline VARIANT ByReference(VARIANT& value) {
    VARIANT variant{};
    V_VT(&variant) = VT_VARIANT | VT_BYREF;
    V_VARIANTREF(&variant) = &value;
    return variant;
}
/// `text` stays the caller's.
inline VARIANT Text(const CBstr& text) {
    VARIANT variant{};
    V_VT(&variant) = VT_BSTR;
    V_BSTR(&variant) = text.Get();
    return variant;
}

}
