#pragma once

namespace win32 {

/// What `operation` returns, or `otherwise` where an exception comes out of it. For what the system
/// calls: an exception must not pass through the frames of the system's own functions.
template <class Result, class Operation>
Result Contained(Result otherwise, Operation operation) noexcept {
    try {
        return operation();
    } catch (...) {
        return otherwise;
    }
}

template <class Operation>
void Contained(Operation operation) noexcept {
    try {
        operation();
    } catch (...) {
    }
}

}
