#pragma once

#include "contract/Guid.h"
#include "contract/Status.h"

#include <cstdint>
#include <memory>

namespace contract {

class IPanel;

/// Makes panels: what a component hands out for its class. User-interface thread only.
class IPanelFactory {
public:
    virtual ~IPanelFactory() = default;

    /// Delivers a new panel, without view and without host. `panel` is untouched on failure.
    virtual Status CreatePanel(std::shared_ptr<IPanel>& panel) = 0;

    /// Keeps the library loaded while no panel lives; as often as it is locked it must be unlocked.
    /// Fails when there is no lock to take back.
    virtual Status LockServer(bool lock) = 0;
};

/// The entry points of a component outside Windows: a shared library that exports these functions
/// by their names, unmangled. Results are the codes of Status; none of them throws.
namespace component {

/// Writes where the library is into the machine's catalogue, or takes that back.
using RegisterServer = std::int32_t() noexcept;
inline constexpr char kRegisterServer[] = "DllRegisterServer";
inline constexpr char kUnregisterServer[] = "DllUnregisterServer";

/// Delivers the factory of the class; kClassNotAvailable for a class that is not the component's.
using GetClassObject = std::int32_t(const Guid& classIdentifier,
                                    std::shared_ptr<IPanelFactory>& factory) noexcept;
inline constexpr char kGetClassObject[] = "DllGetClassObject";

/// kSuccess when the library can be unloaded, kStillInUse while a panel, a factory or a lock is
/// outstanding.
using CanUnloadNow = std::int32_t() noexcept;
inline constexpr char kCanUnloadNow[] = "DllCanUnloadNow";

}

/// The component has no such class (CLASS_E_CLASSNOTAVAILABLE).
inline constexpr Status kClassNotAvailable = Status::FromBits(0x80040111);
/// Success that means no (S_FALSE).
inline constexpr Status kStillInUse{1};

}
