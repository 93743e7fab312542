#pragma once

#include "component/win32/com/ComApi.h"
#include "component/win32/com/Contract.h"

#include <memory>

namespace component {

class CBridge;

/// The interface of COM that stands for one of the contract.
template <class Interface>
struct InterfacePair;

template <class Interface>
using ComOf = typename InterfacePair<Interface>::Com;

#define INTERFACE(name, com)                                                                       \
    template <>                                                                                    \
    struct InterfacePair<contract::name> {                                                         \
        using Com = ::com;                                                                         \
    };
#define HANDMADE(name, com) INTERFACE(name, com)
#define HANDED_ON(name, com) INTERFACE(name, com)
#define EVENT_INTERFACE(name) INTERFACE(name, name)
#include "component/win32/com/InterfaceTable.inc"

/// Makers of what stands for an object on the other side, a new one each time; CBridge, which calls
/// them, finds those that live. An export with an `outer` object is a part of that one.
#define INTERFACE(name, com)                                                                       \
    std::shared_ptr<contract::name> MakeImport(std::shared_ptr<CBridge>, ComPtr<::com>,            \
                                               const contract::name*);                             \
    ComPtr<::com> MakeExport(std::shared_ptr<CBridge>, std::shared_ptr<contract::name>,            \
                             IUnknown* outer);
#define HANDMADE(name, com) INTERFACE(name, com)
#define HANDED_ON(name, com)                                                                       \
    std::shared_ptr<contract::name> MakeImport(std::shared_ptr<CBridge>, ComPtr<::com>,            \
                                               const contract::name*);
#include "component/win32/com/InterfaceTable.inc"

}
