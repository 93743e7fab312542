#pragma once

#include "component/win32/com/ComApi.h"
#include "contract/ErrorInfo.h"
#include "contract/Status.h"

#include <exception>
#include <new>

namespace component {

/// The description that a failing call leaves is the thread's error object in COM, and a text of
/// the contract's in this library; these hand it over.
void ClearComErrorInfo();
/// What the call of a COM object has left, if anything; no earlier description stays.
void TakeComErrorInfo();
/// What the call of an object of the contract has left, said of the interface.
void LeaveComErrorInfo(REFIID interfaceIdentifier);
/// Leaves the text of an exception.
void LeaveComErrorInfo(REFIID interfaceIdentifier, const std::exception& exception);

/// What `operation` returns; a failure where an exception comes out of it, since none may pass the
/// edge of the library.
template <class Operation>
HRESULT Guarded(REFIID interfaceIdentifier, Operation operation) noexcept {
    try {
        return operation();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::exception& exception) {
        LeaveComErrorInfo(interfaceIdentifier, exception);
        return E_FAIL;
    } catch (...) {
        return E_FAIL;
    }
}

/// Calls the contract for a client in COM: no description of an earlier call is left, and that of a
/// failure is handed over.
template <class Operation>
HRESULT CallContract(REFIID interfaceIdentifier, Operation operation) {
    ClearComErrorInfo();
    contract::ClearErrorInfo();
    const contract::Status status = operation();
    if (status.IsFailure()) {
        LeaveComErrorInfo(interfaceIdentifier);
    }
    return status.Code();
}

/// Calls an object in COM for a caller in the contract, in the same way.
template <class Operation>
contract::Status CallCom(Operation operation) {
    ClearComErrorInfo();
    const HRESULT result = operation();
    if (FAILED(result)) {
        TakeComErrorInfo();
    }
    return contract::Status(result);
}

}
