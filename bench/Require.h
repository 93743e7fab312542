#pragma once

#include "contract/Status.h"

#include <stdexcept>

namespace bench {

/// Throws when something is not as it must be: figures of a broken run would mean nothing.
inline void Require(bool isSound, const char* failure) {
    if (!isSound) {
        throw std::runtime_error(failure);
    }
}

/// The same for a call.
inline void Require(contract::Status status, const char* failure) {
    Require(status.IsSuccess(), failure);
}

}
