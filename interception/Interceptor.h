#pragma once

#include "contract/Status.h"
#include "interception/FunctionRef.h"

#include <functional>
#include <string_view>

namespace interception {

/// What an operation delivers besides its status. Nothing, one or more values, or one object.
enum class Delivers { Nothing, Value, Object };

/// Who implements an operation: the device service, or the host around it. For an event: who
/// raises it.
enum class Provider { Device, Host };

/// One operation or event of the contract.
struct Operation {
    /// Interface without its prefix, a dot, and the method: "FileListing.GetFileCount". The
    /// operations of base objects and event sources carry the name of the event interface:
    /// "ExtConnectionEvents.Subscribe". A literal, so that it lives for ever.
    std::string_view name;
    Delivers delivers;
    Provider provider = Provider::Device;
};

/// What stands between a caller and every operation of the objects it was given.
///
/// Called on the thread of the caller (Call) or of the event's source (Deliver); may be called
/// again from inside either. Must not throw.
class IInterceptor {
public:
    virtual ~IInterceptor() = default;

    /// Called in place of each operation; `run` performs it and must be called, if at all, once and
    /// before Call returns, from any thread. An interceptor that returns a failure without calling
    /// `run` makes the operation fail; one that returns success without calling it lets an
    /// operation that delivers an object succeed with null. Values are written by `run` itself, so
    /// an interceptor that turns a success into a failure afterwards leaves them written; an object
    /// is withheld in that case.
    virtual contract::Status Call(const Operation& operation,
                                  FunctionRef<contract::Status()> run) = 0;

    /// Whether the object that `operation` has delivered is wrapped, so that its calls come here as
    /// well. Wrapping costs some hundred nanoseconds an object: an interceptor that has no use for
    /// the calls of a short-lived object saves it by saying no.
    virtual bool WrapsResultOf(const Operation&) const { return true; }

    /// Called for each event on its way from its source to a sink. `deliver` owns copies of the
    /// event's arguments and holds the sink, so it may be kept and called later, on another thread.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): others keep it
    virtual contract::Status Deliver(const Operation&, std::function<contract::Status()> deliver) {
        return deliver();
    }
};

}
