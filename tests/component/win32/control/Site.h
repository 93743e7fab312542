#pragma once

#include "tests/component/win32/control/Frame.h"

namespace controltests {

/// A key that a control has offered to its site.
struct OfferedKey {
    UINT message = 0;
    WPARAM key = 0;
    DWORD modifiers = 0;

    bool operator==(const OfferedKey&) const = default;
};

/// A container's site of one control.
class CSite final : public IOleClientSite, public IOleInPlaceSite, public IOleControlSite {
public:
    explicit CSite(HWND window)
        : offeredWindow(window),
          m_window(window),
          m_frame("frame", window, m_record),
          m_document("document", window, m_record) {}

    CRecord& Record() { return m_record; }
    CFrame& Frame() { return m_frame; }
    CFrame& Document() { return m_document; }
    /// References that others hold on it, its frame and its document.
    ULONG Outstanding() const;

    /// Where the control is to stand.
    RECT place{10, 20, 710, 520};
    RECT clip{0, 0, 5000, 5000};
    /// The window that it offers; its own at first.
    HWND offeredWindow;
    /// Whether it offers IOleInPlaceSite and IOleControlSite.
    bool isForControls = true;
    std::vector<OfferedKey> offeredKeys;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return m_references.Add(); }
    ULONG STDMETHODCALLTYPE Release() override { return m_references.Take(); }

    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return Note("SaveObject"); }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override;
    HRESULT STDMETHODCALLTYPE ShowObject() override { return Note("ShowObject"); }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL isShown) override;
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override {
        return Note("RequestNewObjectLayout");
    }

    // IOleInPlaceSite
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) override;
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return Note("CanInPlaceActivate"); }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return Note("OnInPlaceActivate"); }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override { return Note("OnUIActivate"); }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame,
                                               IOleInPlaceUIWindow** document, LPRECT placeOut,
                                               LPRECT clipOut, LPOLEINPLACEFRAMEINFO info) override;
    HRESULT STDMETHODCALLTYPE Scroll(SIZE extent) override;
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL isUndoable) override;
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return Note("OnInPlaceDeactivate"); }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return Note("DiscardUndoState"); }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return Note("DeactivateAndUndo"); }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT newPlace) override;

    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override {
        return Note("OnControlInfoChanged");
    }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL lock) override;
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** control) override;
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL* himetric, POINTF* containers,
                                              DWORD flags) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message, DWORD modifiers) override;
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL hasFocus) override;
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return Note("ShowPropertyFrame"); }

private:
    HRESULT Note(const char* call, HRESULT usual = S_OK) { return m_record.Note(call, usual); }

    const HWND m_window;
    CRecord m_record;
    CFrame m_frame;
    CFrame m_document;
    CReferences m_references;
};

}
