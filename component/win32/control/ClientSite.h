#pragma once

#include "component/win32/com/ComApi.h"

namespace component {

/// What the control knows of its container besides its place: the site, who wants to hear of
/// changes, and the size that it has been given.
class CClientSite {
public:
    explicit CClientSite(SIZEL naturalExtent) : m_extent(naturalExtent) {}

    IOleClientSite* Get() const { return m_site.Get(); }
    void Set(IOleClientSite* site) { m_site = site; }

    /// Listeners of the object; null when the system has no memory for them.
    IOleAdviseHolder* Listeners();
    void TellSaved();
    void TellClosed();

    /// Who is told when the control looks different, if it asks for the content.
    void SetViewListener(DWORD aspects, DWORD flags, IAdviseSink* sink);
    void GetViewListener(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const;
    void TellViewChanged();

    SIZEL GetExtent() const { return m_extent; }
    void SetExtent(SIZEL extent) { m_extent = extent; }

    /// Hands a key that the control does not want to the container; true when that has used it.
    bool OfferKey(MSG& message) const;

private:
    ComPtr<IOleClientSite> m_site;
    ComPtr<IOleAdviseHolder> m_listeners;
    ComPtr<IAdviseSink> m_viewListener;
    DWORD m_viewAspects = 0;
    DWORD m_viewFlags = 0;
    SIZEL m_extent;
};

}
