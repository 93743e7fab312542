#pragma once

#include "contract/ErrorInfo.h"
#include "contract/Status.h"

#include <memory>
#include <tuple>
#include <utility>

namespace panel {

/// Every call that the panel makes on a host or device object goes through one of these. They clear
/// the thread's error description first, so that a report never shows one that an earlier, silent
/// failure left, and treat a missing object as a failed call.

/// Calls an operation that delivers nothing or values. kInvalidPointer when `object` is null.
template <class Object, class Interface, class... Parameters, class... Arguments>
contract::Status Call(const std::shared_ptr<Object>& object,
                      contract::Status (Interface::*operation)(Parameters...),
                      Arguments&&... arguments) {
    contract::ClearErrorInfo();
    // Held for the length of the call: an event raised inside may replace the caller's reference.
    const std::shared_ptr<Object> held = object; // NOLINT(performance-unnecessary-copy-*)
    if (!held) {
        return contract::kInvalidPointer;
    }
    return (held.get()->*operation)(std::forward<Arguments>(arguments)...);
}

namespace detail {

template <class... Arguments>
contract::Status RequireLast(contract::Status status, contract::Status whenMissing,
                             const Arguments&... arguments) {
    const auto& result = std::get<sizeof...(Arguments) - 1>(std::tie(arguments...));
    if (status.IsFailure() || result) {
        return status;
    }
    contract::ClearErrorInfo();
    return whenMissing;
}

}

/// Calls an operation whose last parameter delivers an object. Success with null counts as failure
/// with kInvalidPointer.
template <class Object, class Operation, class... Arguments>
contract::Status Obtain(const std::shared_ptr<Object>& object, Operation operation,
                        Arguments&&... arguments) {
    return detail::RequireLast(Call(object, operation, arguments...), contract::kInvalidPointer,
                               arguments...);
}

/// Asks an object for another interface. Success with null counts as failure with
/// kNoSuchInterface.
template <class Object, class Operation, class... Arguments>
contract::Status Query(const std::shared_ptr<Object>& object, Operation operation,
                       Arguments&&... arguments) {
    return detail::RequireLast(Call(object, operation, arguments...), contract::kNoSuchInterface,
                               arguments...);
}

}
