#pragma once

#include "panel/control/Call.h"

#include <memory>
#include <utility>

namespace panel {

/// Call() and Obtain() for very many calls in a row, as a long listing makes them.
///
/// Each clears the thread's error description first, as those do, but the description is looked up
/// once for all of them. The objects are not held a second time during a call: only references that
/// nobody but the caller's own scope can replace may be handed in. For one thread.
class CCallSeries {
public:
    template <class Object, class Interface, class... Parameters, class... Arguments>
    contract::Status Call(const std::shared_ptr<Object>& object,
                          contract::Status (Interface::*operation)(Parameters...),
                          Arguments&&... arguments) {
        m_errorInfo.Clear();
        if (!object) {
            return contract::kInvalidPointer;
        }
        return (object.get()->*operation)(std::forward<Arguments>(arguments)...);
    }

    template <class Object, class Operation, class... Arguments>
    contract::Status Obtain(const std::shared_ptr<Object>& object, Operation operation,
                            Arguments&&... arguments) {
        return detail::RequireLast(Call(object, operation, arguments...), contract::kInvalidPointer,
                                   arguments...);
    }

private:
    contract::CErrorInfoClearer m_errorInfo;
};

}
