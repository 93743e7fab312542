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
        return Serve([&] { return Find(point); });
    }
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override {
        if (!points) {
            return E_POINTER;
        }
        *points = nullptr;
        return Serve([&] {
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
    template <class Operation>
    HRESULT Serve(Operation operation) {
        return ServeCall(*m_owner->SharedBridge(), *this, IID_IConnectionPointContainer, operation);
    }
    HRESULT Find(IConnectionPoint** point) {
        std::shared_ptr<contract::IBaseObject<Events>> base;
        std::shared_ptr<contract::IEventSource<Events>> source;
        const HRESULT status = CallContract(IID_IConnectionPointContainer, [&] {
            const contract::Status found = m_owner->Object()->QueryBaseObject(base);
            return found.IsSuccess() && base ? base->FindEventSource(source) : found;
        });
        if (FAILED(status) || !source) {
            return FAILED(status) ? status : E_NOINTERFACE;
        }
        *point = MakeConnectionPoint(m_owner->SharedBridge(), this, std::move(source)).Detach();
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
