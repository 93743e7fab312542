#include "tests/component/win32/control/Frame.h"

namespace controltests {

HRESULT CFrame::QueryInterface(REFIID identifier, void** result) {
    const bool isOurs = identifier == IID_IUnknown || identifier == IID_IOleWindow ||
                        identifier == IID_IOleInPlaceUIWindow || identifier == IID_IOleInPlaceFrame;
    *result = isOurs ? this : nullptr;
    if (!isOurs) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

HRESULT CFrame::GetWindow(HWND* window) {
    *window = m_window;
    return Note("GetWindow");
}

HRESULT CFrame::ContextSensitiveHelp(BOOL) { return Note("ContextSensitiveHelp"); }

HRESULT CFrame::GetBorder(LPRECT) { return Note("GetBorder", INPLACE_E_NOTOOLSPACE); }

HRESULT CFrame::RequestBorderSpace(LPCBORDERWIDTHS) {
    return Note("RequestBorderSpace", INPLACE_E_NOTOOLSPACE);
}

HRESULT CFrame::SetBorderSpace(LPCBORDERWIDTHS) { return Note("SetBorderSpace"); }

HRESULT CFrame::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) {
    m_active = object;
    return Note(object ? "SetActiveObject" : "SetActiveObject(null)");
}

HRESULT CFrame::InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) { return Note("InsertMenus"); }

HRESULT CFrame::SetMenu(HMENU, HOLEMENU, HWND) { return Note("SetMenu"); }

HRESULT CFrame::RemoveMenus(HMENU) { return Note("RemoveMenus"); }

HRESULT CFrame::SetStatusText(LPCOLESTR) { return Note("SetStatusText"); }

HRESULT CFrame::EnableModeless(BOOL) { return Note("EnableModeless"); }

HRESULT CFrame::TranslateAccelerator(LPMSG, WORD) { return Note("TranslateAccelerator", S_FALSE); }

}
