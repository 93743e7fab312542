#pragma once

#include "component/win32/com/Bridge.h"

#include <memory>

namespace component {

/// The object of COM that hands the events of a source in COM on to `sink`, by their numbers.
/// Arguments are converted to the types that the event is declared with (EventDescription.h).
ComPtr<IDispatch> MakeEventSink(std::shared_ptr<CBridge> bridge,
                                std::shared_ptr<contract::_IProgrammingDeviceControlEvents> sink);
ComPtr<IDispatch> MakeEventSink(std::shared_ptr<CBridge> bridge,
                                std::shared_ptr<contract::_IExtConnectionEvents> sink);

}
