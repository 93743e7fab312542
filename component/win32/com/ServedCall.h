#pragma once

#include "component/win32/com/Bridge.h"
#include "component/win32/com/ComCall.h"

namespace component {

/// Serves a call of a client in COM to `object`: on the bridge's thread only, with nothing thrown,
/// and with the object kept until the end, since the client may let go of it inside the call.
template <class Operation>
HRESULT ServeCall(const CBridge& bridge, IUnknown& object, REFIID interfaceIdentifier,
                  Operation operation) noexcept {
    if (!bridge.IsOnItsThread()) {
        return RPC_E_WRONG_THREAD;
    }
    const ComPtr<IUnknown> self(&object);
    return Guarded(interfaceIdentifier, operation);
}

}
