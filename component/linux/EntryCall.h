#pragma once

#include "contract/ErrorInfo.h"
#include "contract/Status.h"

#include <cstdint>
#include <exception>
#include <new>

namespace component {

/// Out of memory (E_OUTOFMEMORY).
inline constexpr contract::Status kOutOfMemory = contract::Status::FromBits(0x8007000E);

/// The code of the status that `operation` returns; of a failure where an exception comes out of
/// it, which would meet frames outside of the library that do not expect it.
template <class Operation>
std::int32_t Guarded(Operation operation) noexcept {
    try {
        return operation().Code();
    } catch (const std::bad_alloc&) {
        return kOutOfMemory.Code();
    } catch (const std::exception& exception) {
        contract::SetErrorInfo(exception.what());
        return contract::kUnspecifiedFailure.Code();
    } catch (...) {
        return contract::kUnspecifiedFailure.Code();
    }
}

}
