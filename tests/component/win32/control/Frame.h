#pragma once

#include "tests/component/win32/control/Record.h"

namespace controltests {

/// A container's frame, or the window of a document in it. Notes calls under its name.
class CFrame final : public IOleInPlaceFrame {
public:
    CFrame(std::string name, HWND window, CRecord& record)
        : m_name(std::move(name)), m_window(window), m_record(record) {}

    ULONG Outstanding() const { return m_references.Outstanding(); }
    /// What was made active in it last.
    IOleInPlaceActiveObject* Active() const { return m_active.Get(); }
    void ForgetActive() { m_active.Reset(); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return m_references.Add(); }
    ULONG STDMETHODCALLTYPE Release() override { return m_references.Take(); }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) override;
    HRESULT STDMETHODCALLTYPE GetBorder(LPRECT border) override;
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS widths) override;
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS widths) override;
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object,
                                              LPCOLESTR name) override;
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU menu, LPOLEMENUGROUPWIDTHS widths) override;
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU menu, HOLEMENU shared, HWND object) override;
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU menu) override;
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR text) override;
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message, WORD identifier) override;

private:
    HRESULT Note(const char* call, HRESULT usual = S_OK) {
        return m_record.Note(m_name + "." + call, usual);
    }

    const std::string m_name;
    const HWND m_window;
    CRecord& m_record;
    component::ComPtr<IOleInPlaceActiveObject> m_active;
    CReferences m_references;
};

}
