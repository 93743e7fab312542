#include "component/win32/control/OleObject.h"

#include "component/win32/com/Identifiers.h"
#include "panel/registration/ComponentIdentity.h"

#include <algorithm>
#include <string_view>

namespace component {

namespace {

// The text is plain ASCII.
HRESULT CopyText(std::string_view text, LPOLESTR* copy) {
    *copy = static_cast<LPOLESTR>(CoTaskMemAlloc((text.size() + 1) * sizeof(wchar_t)));
    if (!*copy) {
        return E_OUTOFMEMORY;
    }
    *std::copy(text.begin(), text.end(), *copy) = L'\0';
    return S_OK;
}

}

HRESULT COleObject::SetClientSite(IOleClientSite* site) {
    return Enter([&] {
        const bool wasShown = site != m_site.Get() && m_activation.GetWindow();
        if (site != m_site.Get()) {
            m_activation.Deactivate();
        }
        m_site.Set(site);
        if (wasShown) {
            m_site.TellViewChanged();
        }
        return S_OK;
    });
}

HRESULT COleObject::GetClientSite(IOleClientSite** site) {
    if (!site) {
        return E_POINTER;
    }
    *site = nullptr;
    return Enter([&] { return ComPtr<IOleClientSite>(m_site.Get()).CopyTo(site); });
}

// It shows no name of its container anywhere.
HRESULT COleObject::SetHostNames(LPCOLESTR, LPCOLESTR) { return S_OK; }

// What it keeps in a container's file is its size alone, which its container knows: it is never
// dirty, and nothing is to be saved.
HRESULT COleObject::Close(DWORD) {
    return Enter([&] {
        m_activation.Close();
        m_site.TellViewChanged();
        m_site.TellClosed();
        return S_OK;
    });
}

HRESULT COleObject::SetMoniker(DWORD, IMoniker*) { return E_NOTIMPL; }

HRESULT COleObject::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    return moniker ? (*moniker = nullptr, E_NOTIMPL) : E_POINTER;
}

HRESULT COleObject::InitFromData(IDataObject*, BOOL, DWORD) { return E_NOTIMPL; }

HRESULT COleObject::GetClipboardData(DWORD, IDataObject** data) {
    return data ? (*data = nullptr, E_NOTIMPL) : E_POINTER;
}

HRESULT COleObject::DoVerb(LONG verb, MSG*, IOleClientSite* activeSite, LONG, HWND, LPCRECT) {
    return Enter([&]() -> HRESULT {
        const ComPtr<IOleClientSite> site = m_site.Get() ? m_site.Get() : activeSite;
        switch (verb) {
        case OLEIVERB_PRIMARY:
        case OLEIVERB_SHOW:
        case OLEIVERB_OPEN:
        case OLEIVERB_UIACTIVATE:
            return m_activation.Activate(site.Get(), true);
        case OLEIVERB_INPLACEACTIVATE:
            return m_activation.Activate(site.Get(), false);
        case OLEIVERB_HIDE:
            return Hide();
        case OLEIVERB_DISCARDUNDOSTATE:
            return S_OK;
        default:
            return verb < 0 ? E_NOTIMPL : OLEOBJ_S_INVALIDVERB;
        }
    });
}

HRESULT COleObject::Hide() {
    const bool wasShown = m_activation.GetWindow() != nullptr;
    m_activation.Deactivate();
    m_site.TellViewChanged();
    if (wasShown && m_site.Get()) {
        m_site.Get()->OnShowWindow(FALSE);
    }
    return S_OK;
}

// There are none for a menu.
HRESULT COleObject::EnumVerbs(IEnumOLEVERB** verbs) {
    return verbs ? (*verbs = nullptr, OLEOBJ_E_NOVERBS) : E_POINTER;
}

HRESULT COleObject::Update() { return S_OK; }

HRESULT COleObject::IsUpToDate() { return S_OK; }

HRESULT COleObject::GetUserClassID(CLSID* identifier) {
    return identifier ? (*identifier = ToGuid(panel::kMaintenanceClass), S_OK) : E_POINTER;
}

HRESULT COleObject::GetUserType(DWORD, LPOLESTR* name) {
    return name ? CopyText(panel::kUserType, name) : E_POINTER;
}

HRESULT COleObject::SetExtent(DWORD aspect, SIZEL* extent) {
    if (aspect != DVASPECT_CONTENT) {
        return DV_E_DVASPECT;
    }
    if (!extent) {
        return E_POINTER;
    }
    if (extent->cx < 0 || extent->cy < 0) {
        return E_INVALIDARG;
    }
    return Enter([&] {
        m_site.SetExtent(*extent);
        m_site.TellViewChanged();
        return S_OK;
    });
}

HRESULT COleObject::GetExtent(DWORD aspect, SIZEL* extent) {
    if (aspect != DVASPECT_CONTENT) {
        return DV_E_DVASPECT;
    }
    if (!extent) {
        return E_POINTER;
    }
    return Enter([&] { return *extent = m_site.GetExtent(), S_OK; });
}

HRESULT COleObject::Advise(IAdviseSink* sink, DWORD* cookie) {
    if (!sink || !cookie) {
        return E_POINTER;
    }
    *cookie = 0;
    return Enter([&] {
        return m_site.Listeners() ? m_site.Listeners()->Advise(sink, cookie) : E_OUTOFMEMORY;
    });
}

HRESULT COleObject::Unadvise(DWORD cookie) {
    return Enter(
        [&] { return m_site.Listeners() ? m_site.Listeners()->Unadvise(cookie) : E_OUTOFMEMORY; });
}

HRESULT COleObject::EnumAdvise(IEnumSTATDATA** sinks) {
    if (!sinks) {
        return E_POINTER;
    }
    *sinks = nullptr;
    return Enter(
        [&] { return m_site.Listeners() ? m_site.Listeners()->EnumAdvise(sinks) : E_OUTOFMEMORY; });
}

// As the system answers from the registry, where the other aspects have none.
HRESULT COleObject::GetMiscStatus(DWORD aspect, DWORD* status) {
    if (!status) {
        return E_POINTER;
    }
    *status = aspect == DVASPECT_CONTENT ? panel::kMiscStatus : 0;
    return S_OK;
}

HRESULT COleObject::SetColorScheme(LOGPALETTE*) { return E_NOTIMPL; }

}
