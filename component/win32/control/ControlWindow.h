#pragma once

#include "component/win32/com/ComObject.h"

#include <functional>
#include <memory>

namespace component {

/// The control's window in its container, the frame around the panel's view.
///
/// It outlives what owns it where that ends inside one of the window's own messages: it then goes
/// with the next ones, and keeps the library loaded until it has gone.
class CControlWindow {
public:
    struct Events {
        std::function<void(SIZE client)> onResized;
        /// The user has clicked into it, or the focus has come into it from outside.
        std::function<void()> onActivated;
    };

    /// Hidden, below `parent`. Null when the system makes none.
    static std::unique_ptr<CControlWindow> Create(HWND parent, Events events);
    ~CControlWindow();
    CControlWindow(const CControlWindow&) = delete;
    CControlWindow& operator=(const CControlWindow&) = delete;

    /// Null once it is gone.
    HWND Get() const;
    /// The panel's view in it; null when there is none.
    HWND GetView() const;
    /// From now on the focus of the view's controls counts, not only that of this window.
    void WatchView();

    void ShowIn(HWND parent);
    /// Hides it where no container sees it. The focus goes back to its parent first, inside which
    /// this may end.
    void Park();

    /// Places it, and cuts off what is outside of `clip`; both in the client area of its parent.
    void Place(const RECT& place, const RECT& clip);
    /// Gives the focus to the view, unless a control in it has it.
    void TakeFocus();
    bool HasFocus() const;

private:
    class CProcedure;

    explicit CControlWindow(std::shared_ptr<CProcedure> procedure);

    const std::shared_ptr<CProcedure> m_procedure;
};

/// Takes back what the windows of this library needed of the system; for the end of the library.
void ForgetControlWindows();

}
