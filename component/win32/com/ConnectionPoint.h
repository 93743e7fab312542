#pragma once

#include "component/win32/com/Bridge.h"
#include "contract/EventSource.h"

#include <map>
#include <memory>

namespace component {

/// The sinks in COM of one event source, by their cookies. Held by the source's subscriptions.
using Subscriptions = std::map<DWORD, ComPtr<IUnknown>>;

/// A connection point that stands for an event source of the contract and belongs to `container`.
ComPtr<IConnectionPoint> MakeConnectionPoint(
    ComPtr<IConnectionPointContainer> container,
    std::shared_ptr<contract::IEventSource<contract::_IProgrammingDeviceControlEvents>> source,
    std::shared_ptr<Subscriptions> subscriptions);
ComPtr<IConnectionPoint>
MakeConnectionPoint(ComPtr<IConnectionPointContainer> container,
                    std::shared_ptr<contract::IEventSource<contract::_IExtConnectionEvents>> source,
                    std::shared_ptr<Subscriptions> subscriptions);

}
