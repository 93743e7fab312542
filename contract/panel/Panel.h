#pragma once

#include "contract/panel/ConnectionClient.h"
#include "contract/panel/ContextMember.h"
#include "contract/panel/GoClient.h"
#include "contract/panel/SetSubsystemAccess.h"

namespace contract {

/// Size in the pixels that the native parent's toolkit counts in (Qt: device-independent ones).
struct PixelSize {
    int width = 0;
    int height = 0;

    friend constexpr bool operator==(PixelSize, PixelSize) = default;
};

/// What a host embeds: the maintenance panel.
///
/// A host does, in this order: SetContext or SetContextAndRegister, CreateView,
/// SetSubsystemAccess, SetConnection, Go; then Resize as its window changes, and DestroyView before
/// it releases the panel (a panel released with its view takes it along). Everything happens on the
/// user-interface thread. The panel may be released from inside any of its own calls or events: it
/// lives until they have returned.
///
/// No operation of the contract throws: neither these, nor those of the objects that a host hands
/// over, since the panel catches nothing that comes out of them. Only memory that runs out makes an
/// exception (std::bad_alloc), and a host lets that end the program. A component that offers the
/// panel over a binary boundary lets no exception pass its edge.
class IPanel : public virtual IContextMember,
               public virtual IConnectionClient,
               public virtual ISetSubsystemAccess,
               public virtual IGoClient {
public:
    /// Creates the view as a child of `nativeParent`: a QWidget* for the Qt front end, an HWND for
    /// Win32, ignored by the headless one. The parent outlives the view. Asks the context for the
    /// host's view control on the way. kInvalidPointer when no view could be made without a parent;
    /// kUnspecifiedFailure when a view exists or has existed, or when none could be made, which may
    /// be tried again.
    virtual Status CreateView(void* nativeParent) = 0;

    /// The size at which the view looks as designed, from the application's font. Needs no view.
    virtual PixelSize GetNaturalSize() const = 0;

    /// Gives the view a new size; widths and heights below 0 count as 0, above 65535 as that.
    /// Nothing without a view.
    virtual void Resize(PixelSize size) = 0;

    /// Destroys the view; the panel goes on without one and its operations on controls do nothing.
    /// The panel cannot be given a second view.
    virtual void DestroyView() = 0;
};

}
