#pragma once

namespace workstation {

/// The event loop of the user-interface thread, as far as calls on the worker need it.
class IEventLoop {
public:
    virtual ~IEventLoop() = default;

    /// Handles the events that are waiting; input from the user is discarded. User-interface
    /// thread only.
    virtual void HandleEvents() = 0;
    /// The same, but waits for an event or a wake-up when nothing is waiting. User-interface thread
    /// only.
    virtual void WaitForEvents() = 0;
    /// Ends WaitForEvents, the next one when none is in progress. Any thread.
    virtual void WakeUp() = 0;
};

}
