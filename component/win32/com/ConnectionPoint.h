#pragma once

#include "component/win32/com/Bridge.h"
#include "contract/EventSource.h"

#include <memory>

namespace component {

/// A connection point that stands for an event source of the contract and belongs to `container`.
ComPtr<IConnectionPoint> MakeConnectionPoint(
    std::shared_ptr<CBridge> bridge, ComPtr<IConnectionPointContainer> container,
    std::shared_ptr<contract::IEventSource<contract::_IProgrammingDeviceControlEvents>> source);
ComPtr<IConnectionPoint> MakeConnectionPoint(
    std::shared_ptr<CBridge> bridge, ComPtr<IConnectionPointContainer> container,
    std::shared_ptr<contract::IEventSource<contract::_IExtConnectionEvents>> source);

}
