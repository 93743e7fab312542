#pragma once

#include "component/win32/control/ControlWindow.h"
#include "contract/panel/Panel.h"

#include <memory>

namespace component {

/// The control's way into its container and out again: nothing shown, active in place, active for
/// the user. Leaves with every reference it has taken, whatever the site answers.
///
/// The panel has one view in its life, made at the first activation: a control that is deactivated
/// keeps it where nobody sees it, and one whose view has ended cannot be activated again.
class CActivation {
public:
    CActivation(contract::IPanel& panel, IOleInPlaceActiveObject& activeObject)
        : m_panel(panel), m_activeObject(activeObject) {}

    /// Shows the control in the place that `site` gives it; with `forUser` it is also given the
    /// keyboard and the frame's menus. Fails where the site will have none of it.
    HRESULT Activate(IOleClientSite* site, bool forUser);
    void DeactivateForUser();
    void Deactivate();
    /// Deactivates it for good.
    void Close();

    bool IsActive() const { return m_site != nullptr; }
    bool IsActiveForUser() const { return m_isForUser; }

    HRESULT SetPlace(const RECT& place, const RECT& clip);
    /// The control's window; null when it is not active.
    HWND GetWindow() const;
    /// The panel's view, also of a control that is not active; null when there is none.
    HWND GetView() const;
    bool HasFocus() const { return m_window && m_window->HasFocus(); }

private:
    struct Context;

    HRESULT Enter(IOleClientSite& clientSite);
    HRESULT FindContext(Context& context) const;
    HRESULT ShowAt(const Context& context);
    HRESULT MakeWindow(HWND parent);
    void ActivateForUser();

    contract::IPanel& m_panel;
    IOleInPlaceActiveObject& m_activeObject;
    ComPtr<IOleInPlaceSite> m_site;
    ComPtr<IOleInPlaceFrame> m_frame;
    ComPtr<IOleInPlaceUIWindow> m_document;
    std::unique_ptr<CControlWindow> m_window;
    bool m_isForUser = false;
    bool m_hadView = false;
    bool m_isChanging = false;
};

}
