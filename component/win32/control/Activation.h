#pragma once

#include "component/win32/control/ControlWindow.h"
#include "contract/panel/Panel.h"

#include <array>
#include <memory>

namespace component {

/// How far the control is in its container. Moving is on the way in or out; no activation begins
/// there.
enum class Stage { Outside, Moving, InPlace, ForUser };

/// The control's way into its container and out again: nothing shown, active in place, active for
/// the user. Leaves with every reference it has taken, whatever the site answers. The container may
/// deactivate it, close it and let go of it inside each call that it gets; what it begins inside an
/// end is refused until that is over.
///
/// The panel has one view in its life, made at the first activation: a control that is deactivated
/// keeps it where nobody sees it, and one that is closed, or whose view has ended with its window,
/// cannot be activated again.
class CActivation {
public:
    /// Keeps `stage` up to date.
    CActivation(contract::IPanel& panel, IOleInPlaceActiveObject& activeObject, Stage& stage)
        : m_panel(panel), m_activeObject(activeObject), m_stage(stage) {}

    /// Shows the control in the place that `site` gives it; with `forUser` it is also given the
    /// keyboard and the frame's menus. Fails where the site will have none of it; what it has
    /// reached by then without the keyboard stays. E_UNEXPECTED, of which no site hears, for a
    /// control that cannot be activated again.
    HRESULT Activate(IOleClientSite* site, bool forUser);
    /// Gives a control that is in its place the keyboard and the frame's menus; nothing for others.
    HRESULT ActivateForUser();
    void DeactivateForUser();
    void Deactivate();
    /// Deactivates it for good.
    void Close();

    HRESULT SetPlace(const RECT& place, const RECT& clip);
    /// The control's window; null when it is not active.
    HWND GetWindow() const;
    /// The panel's view, also of a control that is not active; null when there is none.
    HWND GetView() const;
    bool HasFocus() const { return m_window && m_window->HasFocus(); }

private:
    struct Context;
    /// The container's frame and document window; null where it has none.
    using Frames = std::array<ComPtr<IOleInPlaceUIWindow>, 2>;

    bool HasEnded() const { return m_isClosed || (m_window && !m_window->Get()); }
    HRESULT Enter(IOleClientSite& clientSite);
    HRESULT TakePlace(IOleInPlaceSite& site);
    HRESULT MakeWindow(HWND parent);
    HRESULT TakeFrames();
    void LeaveFrames();

    contract::IPanel& m_panel;
    IOleInPlaceActiveObject& m_activeObject;
    Stage& m_stage;
    /// The site that has been told of the activation.
    ComPtr<IOleInPlaceSite> m_site;
    Frames m_frames;
    std::unique_ptr<CControlWindow> m_window;
    /// How many calls are telling the container that it is no longer active for the user.
    int m_leaveDepth = 0;
    bool m_isClosed = false;
};

}
