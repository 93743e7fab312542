#pragma once

#include "component/win32/com/ComApi.h"
#include "tests/component/win32/control/Site.h"
#include "tests/support/win32/LoadedComponent.h"

#include <cstdint>

namespace controltests {

using component::ComPtr;

/// A container with one control, which it shows in a part of a window, and a message loop that
/// hands keys to the control first.
class CContainer {
public:
    CContainer(const support::CLoadedComponent& component, HWND window)
        : m_control(component.CreateControl()), m_site(window) {}

    CSite& Site() { return m_site; }
    CRecord& Record() { return m_site.Record(); }

    /// An interface of the control; null when it has no such one, or has been released.
    template <class Interface>
    ComPtr<Interface> As() const {
        ComPtr<Interface> object;
        if (m_control) {
            m_control.As(&object);
        }
        return object;
    }

    /// Hands the site over and has the control start afresh.
    void Embed();
    HRESULT DoVerb(LONG verb);
    /// Shows it in its place, or gives it the keyboard too.
    HRESULT Activate() { return DoVerb(OLEIVERB_INPLACEACTIVATE); }
    HRESULT ActivateForUser() { return DoVerb(OLEIVERB_UIACTIVATE); }
    /// Lets go of it without another word.
    void Release();

    /// The control's window, and the panel's view in it; null when there is none.
    HWND Window() const;
    HWND View() const;
    HWND Button(int id) const { return GetDlgItem(View(), id); }

    /// Handles all messages that have come.
    void Pump();
    void Press(std::uint16_t virtualKey, std::uint16_t heldKey = 0);

private:
    bool IsTakenByControl(MSG& message);

    ComPtr<IUnknown> m_control;
    CSite m_site;
};

}
