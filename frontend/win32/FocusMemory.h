#pragma once

#include "frontend/win32/WinApi.h"

#include <functional>
#include <utility>

namespace win32 {

/// Whether a view may take the focus that is outside of it; an empty one says that it may.
///
/// One that may not keeps its wishes until the focus comes into it, and one that may takes the
/// focus from a window around it, but from no control of its host's. Asked for as long as the
/// view's window lives.
using FocusRule = std::function<bool()>;

/// Gives the controls of a view the keyboard focus, one that cannot have it yet as soon as it can:
/// one that is disabled, or whose window is neither shown nor active (the system would make it
/// active, in front of the user's work).
///
/// The wish is dropped when another control of the same top-level window has got the focus since;
/// under a rule, when another control of the view has.
class CFocusMemory {
public:
    CFocusMemory(HWND view, FocusRule mayTakeFocus)
        : m_view(view), m_mayTakeFocus(std::move(mayTakeFocus)) {}

    void Focus(HWND control);
    /// The window in the view that has, or is next to get, the focus; null when none.
    HWND GetFocused() const;

    /// Enables or disables a control of the view. One that has the focus leaves it to the view
    /// itself, which keeps the keyboard alive, and is next to get it.
    void Enable(HWND control, bool enabled);
    /// The view is shown: a control that waits for that gets the focus. Returns whether there is
    /// one to wait for or that has got it.
    bool HandOn();
    /// The view itself has got the focus: hands it on, back to the control of the view that had it
    /// before. Returns whether the focus is where it should be.
    bool HandOn(HWND loser);
    /// Ends a wish for a control that is enabled, and returns the control; null when there is none.
    HWND TakeWish();

private:
    bool CanHaveFocus(HWND control) const;
    bool IsWanted() const;
    bool IsInactive() const;
    bool IsInView(HWND window) const;
    bool IsAllowed() const;

    HWND m_view;
    FocusRule m_mayTakeFocus;
    HWND m_next = nullptr;
    HWND m_before = nullptr; // what had the focus when the wish arose
};

}
