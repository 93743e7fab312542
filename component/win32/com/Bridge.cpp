#include "component/win32/com/Bridge.h"

namespace component {

const void* CBridge::IdentityOf(IUnknown* object) {
    ComPtr<IUnknown> identity;
    object->QueryInterface(IID_PPV_ARGS(identity.GetAddressOf()));
    return identity ? identity.Get() : object;
}

}
