#pragma once

#include "contract/Status.h"

#include <stdexcept>

namespace bench {

/// Throws when a call failed that must not: figures of a broken run would mean nothing.
inline void Require(contract::Status status, const char* failure) {
    if (status.IsFailure()) {
        throw std::runtime_error(failure);
    }
}

}
