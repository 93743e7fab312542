#include "tests/component/win32/control/Site.h"

namespace controltests {

ULONG CSite::Outstanding() const {
    return m_references.Outstanding() + m_frame.Outstanding() + m_document.Outstanding();
}

HRESULT CSite::QueryInterface(REFIID identifier, void** result) {
    *result = nullptr;
    if (identifier == IID_IUnknown || identifier == IID_IOleClientSite) {
        *result = static_cast<IOleClientSite*>(this);
    } else if (isForControls &&
               (identifier == IID_IOleWindow || identifier == IID_IOleInPlaceSite)) {
        *result = static_cast<IOleInPlaceSite*>(this);
    } else if (isForControls && identifier == IID_IOleControlSite) {
        *result = static_cast<IOleControlSite*>(this);
    }
    if (!*result) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

HRESULT CSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    *moniker = nullptr;
    return Note("GetMoniker", E_NOTIMPL);
}

HRESULT CSite::GetContainer(IOleContainer** container) {
    *container = nullptr;
    return Note("GetContainer", E_NOINTERFACE);
}

HRESULT CSite::OnShowWindow(BOOL isShown) {
    return Note(isShown ? "OnShowWindow(true)" : "OnShowWindow(false)");
}

HRESULT CSite::GetWindow(HWND* window) {
    *window = offeredWindow;
    return Note("GetWindow");
}

HRESULT CSite::ContextSensitiveHelp(BOOL) { return Note("ContextSensitiveHelp"); }

HRESULT CSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                LPRECT placeOut, LPRECT clipOut, LPOLEINPLACEFRAMEINFO info) {
    *frame = nullptr;
    *document = nullptr;
    const HRESULT result = Note("GetWindowContext");
    if (FAILED(result)) {
        return result;
    }
    m_frame.AddRef();
    *frame = &m_frame;
    m_document.AddRef();
    *document = &m_document;
    *placeOut = place;
    *clipOut = clip;
    info->fMDIApp = FALSE;
    info->hwndFrame = m_window;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return result;
}

HRESULT CSite::Scroll(SIZE) { return Note("Scroll", S_FALSE); }

HRESULT CSite::OnUIDeactivate(BOOL) { return Note("OnUIDeactivate"); }

HRESULT CSite::OnPosRectChange(LPCRECT) { return Note("OnPosRectChange"); }

HRESULT CSite::LockInPlaceActive(BOOL) { return Note("LockInPlaceActive"); }

HRESULT CSite::GetExtendedControl(IDispatch** control) {
    *control = nullptr;
    return Note("GetExtendedControl", E_NOTIMPL);
}

HRESULT CSite::TransformCoords(POINTL*, POINTF*, DWORD) {
    return Note("TransformCoords", E_NOTIMPL);
}

HRESULT CSite::TranslateAccelerator(MSG* message, DWORD modifiers) {
    offeredKeys.push_back({message->message, message->wParam, modifiers});
    return Note("TranslateAccelerator", S_FALSE);
}

HRESULT CSite::OnFocus(BOOL hasFocus) {
    return Note(hasFocus ? "OnFocus(true)" : "OnFocus(false)");
}

}
