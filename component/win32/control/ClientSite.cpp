#include "component/win32/control/ClientSite.h"

namespace component {

namespace {

// The keys that go with a key, as a container's site counts them (KEYMODIFIERS of ocidl.h).
DWORD PressedModifiers() {
    constexpr DWORD kShift = 1;
    constexpr DWORD kControl = 2;
    constexpr DWORD kAlt = 4;
    DWORD modifiers = 0;
    modifiers |= GetKeyState(VK_SHIFT) < 0 ? kShift : 0;
    modifiers |= GetKeyState(VK_CONTROL) < 0 ? kControl : 0;
    modifiers |= GetKeyState(VK_MENU) < 0 ? kAlt : 0;
    return modifiers;
}

}

IOleAdviseHolder* CClientSite::Listeners() {
    if (!m_listeners) {
        CreateOleAdviseHolder(m_listeners.GetAddressOf());
    }
    return m_listeners.Get();
}

void CClientSite::TellSaved() {
    if (m_listeners) {
        m_listeners->SendOnSave();
    }
}

void CClientSite::TellClosed() {
    if (m_listeners) {
        m_listeners->SendOnClose();
    }
}

void CClientSite::SetViewListener(DWORD aspects, DWORD flags, IAdviseSink* sink) {
    m_viewAspects = aspects;
    m_viewFlags = flags;
    m_viewListener = sink;
    if (flags & ADVF_PRIMEFIRST) {
        TellViewChanged();
    }
}

void CClientSite::GetViewListener(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const {
    if (aspects) {
        *aspects = m_viewAspects;
    }
    if (flags) {
        *flags = m_viewFlags;
    }
    if (sink) {
        m_viewListener.CopyTo(sink);
    }
}

void CClientSite::TellViewChanged() {
    const ComPtr<IAdviseSink> listener = m_viewListener;
    if (!listener || !(m_viewAspects & DVASPECT_CONTENT)) {
        return;
    }
    if (m_viewFlags & ADVF_ONLYONCE) {
        m_viewListener.Reset();
    }
    listener->OnViewChange(DVASPECT_CONTENT, -1);
}

bool CClientSite::OfferKey(MSG& message) const {
    ComPtr<IOleControlSite> site;
    return m_site && SUCCEEDED(m_site.As(&site)) &&
           site->TranslateAccelerator(&message, PressedModifiers()) == S_OK;
}

}
