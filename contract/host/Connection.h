#pragma once

#include "contract/EventSource.h"
#include "contract/Status.h"

#include <memory>

namespace contract {

class _IExtConnectionEvents;

/// The state of a connection. One call at a time, on the thread of the call (see
/// contract/device/ProgrammingDeviceControl.h).
class IConnectionState {
public:
    virtual ~IConnectionState() = default;

    /// Whether a device is ready. Untouched on failure.
    virtual Status IsConnected(bool& connected) = 0;
};

/// The host's connection to a device. Results are untouched on failure.
///
/// One call at a time, on the thread of the call (see contract/device/ProgrammingDeviceControl.h);
/// its events reach the panel on the user-interface thread. The panel guards its references to the
/// connection with a lock all the same.
class IConnection {
public:
    virtual ~IConnection() = default;

    /// Asks for the state; kNoSuchInterface when the connection cannot tell.
    virtual Status QueryConnectionState(std::shared_ptr<IConnectionState>& state) = 0;

    /// Asks for the object through which events are found. kNoSuchInterface: no events.
    virtual Status QueryBaseObject(std::shared_ptr<IBaseObject<_IExtConnectionEvents>>& object) = 0;
};

}
