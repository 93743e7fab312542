#include "component/win32/com/EventSink.h"

#include "component/win32/com/ComObject.h"
#include "component/win32/com/EventDescription.h"
#include "component/win32/com/ServedCall.h"
#include "component/win32/com/TypeLibrary.h"
#include "component/win32/com/Variant.h"

#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace component {

namespace {

using Arguments = std::vector<CVariant>;

/// The arguments in order, each as the type that it is declared with. Callers pass them the other
/// way round.
HRESULT ReadArguments(const DISPPARAMS& parameters, const std::vector<VARTYPE>& types,
                      Arguments& arguments) {
    if (parameters.cNamedArgs != 0) {
        return DISP_E_NONAMEDARGS;
    }
    if (parameters.cArgs != types.size()) {
        return DISP_E_BADPARAMCOUNT;
    }
    for (std::size_t index = 0; index < types.size(); ++index) {
        VARIANT* const given = &parameters.rgvarg[types.size() - 1 - index];
        CVariant& value = arguments.emplace_back();
        CVariant direct;
        HRESULT result = VariantCopyInd(direct.Receive(), given);
        if (SUCCEEDED(result)) {
            result = VariantChangeType(value.Receive(), direct.Receive(), 0, types[index]);
        }
        if (FAILED(result)) {
            return result;
        }
    }
    return S_OK;
}

/// Base of the sinks: by number to one operation of the contract's events.
template <class Events>
class CEventSink : public IDispatch {
public:
    CEventSink(std::shared_ptr<CBridge> bridge, std::shared_ptr<Events> sink)
        : m_bridge(std::move(bridge)), m_sink(std::move(sink)) {}
    virtual ~CEventSink() = default;
    CEventSink(const CEventSink&) = delete;
    CEventSink& operator=(const CEventSink&) = delete;

    // Sources ask for the interface of the events first, and for IDispatch where they get none.
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override {
        const bool isEvents = identifier == __uuidof(ComOf<Events>);
        return AnswerQuery<IDispatch>(this, isEvents ? IID_IDispatch : identifier, result);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        return count ? (*count = 0, S_OK) : E_POINTER;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        return info ? (*info = nullptr, DISP_E_BADINDEX) : E_POINTER;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* parameters,
                                     VARIANT*, EXCEPINFO*, UINT*) override {
        if (!parameters) {
            return E_POINTER;
        }
        return ServeCall(*m_bridge, *this, __uuidof(ComOf<Events>),
                         [&] { return Receive(number, *parameters); });
    }

protected:
    using Sink = Events;

    virtual HRESULT HandOn(DISPID number, const Arguments& arguments) = 0;

    template <class... Parameters>
    HRESULT Deliver(contract::Status (Events::*event)(Parameters...), const Arguments& arguments) {
        return DeliverEach(event, arguments, std::index_sequence_for<Parameters...>());
    }

private:
    HRESULT Receive(DISPID number, const DISPPARAMS& parameters) {
        if (!m_events) {
            const HRESULT result = FindTypeInfo(__uuidof(ComOf<Events>), m_events.GetAddressOf());
            if (FAILED(result)) {
                return result;
            }
        }
        const auto types = DescribeEvent(*m_events.Get(), number);
        if (!types) {
            return DISP_E_MEMBERNOTFOUND;
        }
        Arguments arguments;
        const HRESULT result = ReadArguments(parameters, *types, arguments);
        return FAILED(result) ? result : HandOn(number, arguments);
    }

    template <class... Parameters, std::size_t... indices>
    HRESULT DeliverEach(contract::Status (Events::*event)(Parameters...),
                        const Arguments& arguments, std::index_sequence<indices...>) {
        const std::shared_ptr<Events> sink = m_sink;
        return (sink.get()->*event)(
                   ValueOf<std::remove_cvref_t<Parameters>>(arguments[indices].Get())...)
            .Code();
    }

    const std::shared_ptr<CBridge> m_bridge;
    const std::shared_ptr<Events> m_sink;
    ComPtr<ITypeInfo> m_events;

    KRX8_COUNTED_REFERENCES(CEventSink)
};

#define EVENT_INTERFACE(events)                                                                    \
    class CSinkOf##events final : public CEventSink<contract::events> {                            \
    public:                                                                                        \
        using CEventSink::CEventSink;                                                              \
                                                                                                   \
    private:                                                                                       \
        HRESULT HandOn(DISPID number, const Arguments& arguments) override {                       \
            switch (number) {
#define EVENT(number_, name)                                                                       \
    case number_:                                                                                  \
        return Deliver(&Sink::name, arguments);
#define EVENT1(number_, name, A) EVENT(number_, name)
#define EVENT2(number_, name, A, B) EVENT(number_, name)
#define EVENT3(number_, name, A, B, C) EVENT(number_, name)
#define EVENTS_END                                                                                 \
    }                                                                                              \
    return DISP_E_MEMBERNOTFOUND;                                                                  \
    }                                                                                              \
    }                                                                                              \
    ;
#include "component/win32/com/InterfaceTable.inc"
#undef EVENT

}

#define EVENT_INTERFACE(events)                                                                    \
    ComPtr<IDispatch> MakeEventSink(std::shared_ptr<CBridge> bridge,                               \
                                    std::shared_ptr<contract::events> sink) {                      \
        return MakeCom<CSinkOf##events>(std::move(bridge), std::move(sink));                       \
    }
#include "component/win32/com/InterfaceTable.inc"

}
