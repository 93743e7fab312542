#include "tests/pictures/win32/Site.h"

namespace pictures {

HRESULT CSite::QueryInterface(REFIID identifier, void** result) {
    if (identifier == IID_IOleWindow) {
        return component::AnswerQuery<IOleInPlaceSite>(this, IID_IOleInPlaceSite, result);
    }
    return identifier == IID_IOleInPlaceSite
               ? component::AnswerQuery<IOleInPlaceSite>(this, identifier, result)
               : component::AnswerQuery<IOleClientSite>(this, identifier, result);
}

HRESULT CSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    *moniker = nullptr;
    return E_NOTIMPL;
}

HRESULT CSite::GetContainer(IOleContainer** container) {
    *container = nullptr;
    return E_NOINTERFACE;
}

HRESULT CSite::GetWindow(HWND* window) {
    *window = m_window;
    return S_OK;
}

HRESULT CSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                LPRECT place, LPRECT clip, LPOLEINPLACEFRAMEINFO frameInfo) {
    *frame = nullptr;
    *document = nullptr;
    GetClientRect(m_window, place);
    *clip = *place;
    frameInfo->fMDIApp = FALSE;
    frameInfo->hwndFrame = m_window;
    frameInfo->haccel = nullptr;
    frameInfo->cAccelEntries = 0;
    return S_OK;
}

}
