#include "component/win32/com/ConnectionPoint.h"

#include "component/win32/com/ComObject.h"
#include "component/win32/com/Enumeration.h"
#include "component/win32/com/ServedCall.h"
#include "component/win32/com/Variant.h"

#include <array>
#include <map>
#include <utility>
#include <vector>

namespace component {

namespace {

using contract::Status;

/// The sinks in COM of one event source, by their cookies. Held by the source's subscriptions.
using Subscriptions = std::map<DWORD, ComPtr<IUnknown>>;

/// Base of the sinks that the contract's sources call: each event is a call by number. Holds the
/// list that its own sink stands in.
template <class Events>
class CEventCaller : public Events {
public:
    CEventCaller(ComPtr<IDispatch> sink, std::shared_ptr<Subscriptions> subscriptions)
        : m_sink(std::move(sink)), m_subscriptions(std::move(subscriptions)) {}

protected:
    template <class... Parameters>
    Status Fire(DISPID number, const Parameters&... parameters) {
        // By number, arguments are passed from the last to the first.
        std::array<CVariant, sizeof...(Parameters)> values{CVariant(parameters)...};
        std::array<VARIANT, sizeof...(Parameters)> reversed;
        for (std::size_t index = 0; index < values.size(); ++index) {
            reversed[values.size() - 1 - index] = values[index].Get();
        }
        DISPPARAMS given{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        const ComPtr<IDispatch> sink = m_sink;
        return Status(sink->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &given,
                                   nullptr, nullptr, nullptr));
    }

private:
    const ComPtr<IDispatch> m_sink;
    const std::shared_ptr<Subscriptions> m_subscriptions;
};

#define EVENT_INTERFACE(events)                                                                    \
    class CCallerOf##events final : public CEventCaller<contract::events> {                        \
    public:                                                                                        \
        using CEventCaller::CEventCaller;
#define EVENT1(number, name, A)                                                                    \
    Status name(A a) override { return Fire(number, a); }
#define EVENT2(number, name, A, B)                                                                 \
    Status name(A a, B b) override { return Fire(number, a, b); }
#define EVENT3(number, name, A, B, C)                                                              \
    Status name(A a, B b, C c) override { return Fire(number, a, b, c); }
#define EVENTS_END                                                                                 \
    }                                                                                              \
    ;
#include "component/win32/com/InterfaceTable.inc"

struct HeldConnection {
    ComPtr<IUnknown> sink;
    DWORD cookie;

    CONNECTDATA Copy() const {
        sink->AddRef();
        return {sink.Get(), cookie};
    }
};

template <class Events, class Caller>
class CConnectionPoint final : public IConnectionPoint {
public:
    CConnectionPoint(std::shared_ptr<CBridge> bridge, ComPtr<IConnectionPointContainer> container,
                     std::shared_ptr<contract::IEventSource<Events>> source)
        : m_bridge(std::move(bridge)),
          m_container(std::move(container)),
          m_source(std::move(source)),
          m_subscriptions(m_bridge->KeepBeside<Subscriptions>(m_source.get())) {}
    virtual ~CConnectionPoint() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override {
        return AnswerQuery<IConnectionPoint>(this, identifier, result);
    }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* identifier) override {
        return identifier ? (*identifier = __uuidof(ComOf<Events>), S_OK) : E_POINTER;
    }
    HRESULT STDMETHODCALLTYPE
    GetConnectionPointContainer(IConnectionPointContainer** container) override {
        if (!container) {
            return E_POINTER;
        }
        *container = nullptr;
        return Serve([&] { return m_container.CopyTo(container); });
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override {
        if (!sink || !cookie) {
            return E_POINTER;
        }
        *cookie = 0;
        return Serve([&] { return Subscribe(*sink, *cookie); });
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
        return Serve([&] { return Unsubscribe(cookie); });
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override {
        if (!connections) {
            return E_POINTER;
        }
        *connections = nullptr;
        return Serve([&] {
            std::vector<HeldConnection> held;
            for (const auto& [cookie, sink] : *m_subscriptions) {
                held.push_back({sink, cookie});
            }
            *connections =
                MakeCom<CEnumeration<IEnumConnections, CONNECTDATA, HeldConnection>>(held).Detach();
            return S_OK;
        });
    }

private:
    template <class Operation>
    HRESULT Serve(Operation operation) {
        return ServeCall(*m_bridge, *this, IID_IConnectionPoint, operation);
    }
    HRESULT Subscribe(IUnknown& sink, DWORD& cookie) {
        ComPtr<IDispatch> dispatch;
        if (FAILED(sink.QueryInterface(__uuidof(ComOf<Events>),
                                       reinterpret_cast<void**>(dispatch.GetAddressOf()))) &&
            FAILED(sink.QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf())))) {
            return CONNECT_E_CANNOTCONNECT;
        }
        std::uint32_t delivered = 0;
        const auto caller = std::make_shared<Caller>(dispatch, m_subscriptions);
        const HRESULT status = CallContract(IID_IConnectionPoint,
                                            [&] { return m_source->Subscribe(caller, delivered); });
        if (SUCCEEDED(status)) {
            (*m_subscriptions)[delivered] = dispatch;
            cookie = delivered;
        }
        return status;
    }
    // The source knows its cookies best: it may be found through another object each time, beside
    // which none of its sinks are kept. A sink that it does not let go of still gets events, and
    // stays in the list.
    HRESULT Unsubscribe(DWORD cookie) {
        const bool isKept = m_subscriptions->contains(cookie);
        const HRESULT status =
            CallContract(IID_IConnectionPoint, [&] { return m_source->Unsubscribe(cookie); });
        if (SUCCEEDED(status)) {
            m_subscriptions->erase(cookie);
        }
        return FAILED(status) && !isKept ? CONNECT_E_NOCONNECTION : status;
    }

    const std::shared_ptr<CBridge> m_bridge;
    const ComPtr<IConnectionPointContainer> m_container;
    const std::shared_ptr<contract::IEventSource<Events>> m_source;
    const std::shared_ptr<Subscriptions> m_subscriptions;

    KRX8_COUNTED_REFERENCES(CConnectionPoint)
};

}

#define EVENT_INTERFACE(events)                                                                    \
    ComPtr<IConnectionPoint> MakeConnectionPoint(                                                  \
        std::shared_ptr<CBridge> bridge, ComPtr<IConnectionPointContainer> container,              \
        std::shared_ptr<contract::IEventSource<contract::events>> source) {                        \
        return MakeCom<CConnectionPoint<contract::events, CCallerOf##events>>(                     \
            std::move(bridge), std::move(container), std::move(source));                           \
    }
#include "component/win32/com/InterfaceTable.inc"

}
