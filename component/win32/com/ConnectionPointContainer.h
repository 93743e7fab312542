#pragma once

#include "component/win32/com/ConnectionPoint.h"
#include "component/win32/com/Enumeration.h"
#include "component/win32/com/Export.h"

#include <memory>
#include <utility>

namespace component {

struct HeldConnectionPoint {
    ComPtr<IConnectionPoint> point;

    IConnectionPoint* Copy() const {
        point->AddRef();
        return point.Get();
    }
};

/// The part of an exported object that answers for its one connection point.
template <class Events, class Interface>
class CConnectionPointContainer final : public IConnectionPointContainer {
public:
    explicit CConnectionPointContainer(CExport<Interface>& owner) : m_owner(&owner) {}
    virtual ~CConnectionPointContainer() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override {
        return identifier == IID_IConnectionPointContainer
                   ? AnswerQuery<IConnectionPointContainer>(this, identifier, result)
                   : m_owner->QueryInterface(identifier, result);
    }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID identifier,
                                                  IConnectionPoint** point) override {
        if (!point) {
            return E_POINTER;
        }
        *point = nullptr;
        if (identifier != __uuidof(ComOf<Events>)) {
            return CONNECT_E_NOCONNECTION;
        }
        return Guarded(IID_IConnectionPointContainer, [&] { return Find(point); });
    }
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override {
        if (!points) {
            return E_POINTER;
        }
        *points = nullptr;
        return Guarded(IID_IConnectionPointContainer, [&] {
            HeldConnectionPoint held;
            const HRESULT result = Find(held.point.GetAddressOf());
            if (SUCCEEDED(result)) {
                using Enumeration =
                    CEnumeration<IEnumConnectionPoints, IConnectionPoint*, HeldConnectionPoint>;
                *points = MakeCom<Enumeration>(std::vector{held}).Detach();
            }
            return result;
        });
    }

private:
    HRESULT Find(IConnectionPoint** point) {
        std::shared_ptr<contract::IBaseObject<Events>> base;
        std::shared_ptr<contract::IEventSource<Events>> source;
        contract::Status status = m_owner->Object()->QueryBaseObject(base);
        if (status.IsSuccess() && base) {
            status = base->FindEventSource(source);
        }
        if (status.IsFailure() || !source) {
            return status.IsFailure() ? status.Code() : E_NOINTERFACE;
        }
        auto subscriptions =
            m_owner->SharedBridge()->template KeepBeside<Subscriptions>(source.get());
        *point = MakeConnectionPoint(this, std::move(source), std::move(subscriptions)).Detach();
        return S_OK;
    }

    const ComPtr<CExport<Interface>> m_owner;

    KRX8_COUNTED_REFERENCES(CConnectionPointContainer)
};

template <class Events, class Interface>
HRESULT ExportEvents(CExport<Interface>& object, void** result) {
    *result = MakeCom<CConnectionPointContainer<Events, Interface>>(object).Detach();
    return S_OK;
}

}
