#pragma once

#include "component/win32/com/ComCall.h"
#include "component/win32/com/EventSink.h"
#include "contract/EventSource.h"

#include <memory>
#include <utility>

namespace component {

/// A connection point of an object in COM.
template <class Events>
class CImportedEventSource final : public contract::IEventSource<Events> {
public:
    CImportedEventSource(std::shared_ptr<CBridge> bridge, ComPtr<IConnectionPoint> point)
        : m_bridge(std::move(bridge)), m_point(std::move(point)) {}

    contract::Status Subscribe(const std::shared_ptr<Events>& sink,
                               std::uint32_t& cookie) override {
        if (!sink) {
            return contract::kInvalidPointer;
        }
        DWORD delivered = 0;
        const ComPtr<IDispatch> face = MakeEventSink(m_bridge, sink);
        const contract::Status status =
            CallCom([&] { return m_point->Advise(face.Get(), &delivered); });
        if (status.IsSuccess()) {
            cookie = delivered;
        }
        return status;
    }

    contract::Status Unsubscribe(std::uint32_t cookie) override {
        return CallCom([&] { return m_point->Unadvise(cookie); });
    }

private:
    const std::shared_ptr<CBridge> m_bridge;
    const ComPtr<IConnectionPoint> m_point;
};

/// An object in COM, of which nothing is known but that it may have connection points.
template <class Events>
class CImportedBaseObject final : public contract::IBaseObject<Events> {
public:
    CImportedBaseObject(std::shared_ptr<CBridge> bridge, ComPtr<IUnknown> object)
        : m_bridge(std::move(bridge)), m_object(std::move(object)) {}

    contract::Status
    FindEventSource(std::shared_ptr<contract::IEventSource<Events>>& source) override {
        ComPtr<IConnectionPointContainer> container;
        ComPtr<IConnectionPoint> point;
        const contract::Status status = CallCom([&] {
            const HRESULT found = m_object.As(&container);
            return FAILED(found) ? found
                                 : container->FindConnectionPoint(__uuidof(ComOf<Events>),
                                                                  point.GetAddressOf());
        });
        if (status.IsFailure() || !point) {
            return status.IsFailure() ? status : contract::kNoSuchInterface;
        }
        source = std::make_shared<CImportedEventSource<Events>>(m_bridge, std::move(point));
        return status;
    }

private:
    const std::shared_ptr<CBridge> m_bridge;
    const ComPtr<IUnknown> m_object;
};

/// Asks an object of COM for its base, by which its events are found.
template <class Events>
contract::Status ImportEvents(const std::shared_ptr<CBridge>& bridge, IUnknown* object,
                              std::shared_ptr<contract::IBaseObject<Events>>& base) {
    ComPtr<IUnknown> identity;
    const HRESULT result = object->QueryInterface(IID_PPV_ARGS(identity.GetAddressOf()));
    if (SUCCEEDED(result) && identity) {
        base = std::make_shared<CImportedBaseObject<Events>>(bridge, std::move(identity));
    }
    return contract::Status(SUCCEEDED(result) && !base ? E_NOINTERFACE : result);
}

}
