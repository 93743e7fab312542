#pragma once

#include "contract/panel/ConnectionClient.h"
#include "contract/panel/ContextMember.h"
#include "contract/panel/GoClient.h"
#include "contract/panel/SetSubsystemAccess.h"

namespace contract {

/// Size in pixels.
struct PixelSize {
    int width = 0;
    int height = 0;

    friend constexpr bool operator==(PixelSize, PixelSize) = default;
};

/// What a host embeds: the maintenance panel.
///
/// A host does, in this order: SetContext or SetContextAndRegister, CreateView,
/// SetSubsystemAccess, SetConnection, Go; then Resize as its window changes, and DestroyView before
/// it releases the panel. Everything happens on the user-interface thread. The panel may be
/// released from inside any of its own calls or events: it lives until they have returned.
class IPanel : public virtual IContextMember,
               public virtual IConnectionClient,
               public virtual ISetSubsystemAccess,
               public virtual IGoClient {
public:
    /// Creates the view as a child of `nativeParent`: a QWidget* for the Qt front end, an HWND for
    /// Win32, ignored by the headless one. The parent outlives the view. kInvalidPointer for a null
    /// parent where one is needed; kUnspecifiedFailure when a view exists or none can be made.
    virtual Status CreateView(void* nativeParent) = 0;

    /// The size at which the view looks as designed, from the font in use. Needs no view.
    virtual PixelSize GetNaturalSize() const = 0;

    /// Gives the view a new size; widths and heights above 65535 are cut to it. Nothing without a
    /// view.
    virtual void Resize(PixelSize size) = 0;

    /// Destroys the view; the panel goes on without one and its operations on controls do nothing.
    /// The panel cannot be given a second view.
    virtual void DestroyView() = 0;
};

}
