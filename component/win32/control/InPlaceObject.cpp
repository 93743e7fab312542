#include "component/win32/control/InPlaceObject.h"

#include "component/win32/control/Keys.h"

namespace component {

namespace {

HRESULT TellWindow(const CActivation& activation, HWND& window) {
    window = activation.GetWindow();
    return window ? S_OK : E_FAIL;
}

}

HRESULT CInPlaceObject::GetWindow(HWND* window) {
    if (!window) {
        return E_POINTER;
    }
    *window = nullptr;
    return Enter([&] { return TellWindow(m_activation, *window); });
}

HRESULT CInPlaceObject::ContextSensitiveHelp(BOOL) { return E_NOTIMPL; }

HRESULT CInPlaceObject::InPlaceDeactivate() {
    return Enter([&] {
        m_activation.Deactivate();
        m_site.TellViewChanged();
        return S_OK;
    });
}

HRESULT CInPlaceObject::UIDeactivate() {
    return Enter([&] {
        m_activation.DeactivateForUser();
        return S_OK;
    });
}

HRESULT CInPlaceObject::SetObjectRects(LPCRECT place, LPCRECT clip) {
    if (!place) {
        return E_POINTER;
    }
    return Enter([&] { return m_activation.SetPlace(*place, clip ? *clip : *place); });
}

HRESULT CInPlaceObject::ReactivateAndUndo() { return INPLACE_E_NOTUNDOABLE; }

HRESULT CInPlaceActiveObject::GetWindow(HWND* window) {
    if (!window) {
        return E_POINTER;
    }
    *window = nullptr;
    return Enter([&] { return TellWindow(m_activation, *window); });
}

HRESULT CInPlaceActiveObject::ContextSensitiveHelp(BOOL) { return E_NOTIMPL; }

HRESULT CInPlaceActiveObject::TranslateAccelerator(LPMSG message) {
    if (!message) {
        return E_POINTER;
    }
    return Enter([&]() -> HRESULT {
        const HWND view = m_activation.GetView();
        if (!IsKeyMessage(*message) || !view || !m_activation.GetWindow() ||
            !m_activation.HasFocus()) {
            return S_FALSE;
        }
        if (IsForView(view, *message)) {
            return HandOn(view, *message) ? S_OK : S_FALSE;
        }
        return m_site.OfferKey(*message) ? S_OK : S_FALSE;
    });
}

HRESULT CInPlaceActiveObject::OnFrameWindowActivate(BOOL) { return S_OK; }

HRESULT CInPlaceActiveObject::OnDocWindowActivate(BOOL) { return S_OK; }

// It has no tools of its own around the container's window.
HRESULT CInPlaceActiveObject::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) { return S_OK; }

// Its dialogs are modal; the system disables their owner itself.
HRESULT CInPlaceActiveObject::EnableModeless(BOOL) { return S_OK; }

}
