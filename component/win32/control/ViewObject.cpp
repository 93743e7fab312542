#include "component/win32/control/ViewObject.h"

#include "component/win32/control/PanelPicture.h"

namespace component {

HRESULT CViewObject::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC context,
                          LPCRECTL bounds, LPCRECTL, BOOL(STDMETHODCALLTYPE*)(ULONG_PTR),
                          ULONG_PTR) {
    if (aspect != DVASPECT_CONTENT) {
        return DV_E_DVASPECT;
    }
    if (!context || !bounds) {
        return E_POINTER;
    }
    return Enter([&] {
        const RECT place{bounds->left, bounds->top, bounds->right, bounds->bottom};
        DrawPanel(context, place, m_activation.GetView());
        return S_OK;
    });
}

// The colours of the screen will do.
HRESULT CViewObject::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colours) {
    return colours ? (*colours = nullptr, S_FALSE) : E_POINTER;
}

HRESULT CViewObject::Freeze(DWORD, LONG, void*, DWORD*) { return E_NOTIMPL; }

HRESULT CViewObject::Unfreeze(DWORD) { return E_NOTIMPL; }

HRESULT CViewObject::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
    return Enter([&] {
        m_site.SetViewListener(aspects, flags, sink);
        return S_OK;
    });
}

HRESULT CViewObject::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
    if (sink) {
        *sink = nullptr;
    }
    return Enter([&] {
        m_site.GetViewListener(aspects, flags, sink);
        return S_OK;
    });
}

HRESULT CViewObject::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, SIZEL* extent) {
    if (aspect != DVASPECT_CONTENT) {
        return DV_E_DVASPECT;
    }
    if (!extent) {
        return E_POINTER;
    }
    return Enter([&] { return *extent = m_site.GetExtent(), S_OK; });
}

}
