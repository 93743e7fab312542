#pragma once

#include "tests/component/win32/control/Record.h"

namespace controltests {

/// Listens to an object and its view.
class CListener final : public IAdviseSink {
public:
    std::vector<std::string> calls;
    /// Runs inside each call.
    std::function<void()> inside;

    ULONG Outstanding() const { return m_references.Outstanding(); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override {
        const bool isOurs = identifier == IID_IUnknown || identifier == IID_IAdviseSink;
        *result = isOurs ? this : nullptr;
        if (isOurs) {
            AddRef();
        }
        return isOurs ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return m_references.Add(); }
    ULONG STDMETHODCALLTYPE Release() override { return m_references.Take(); }

    void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override { Note("OnDataChange"); }
    void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override { Note("OnViewChange"); }
    void STDMETHODCALLTYPE OnRename(IMoniker*) override { Note("OnRename"); }
    void STDMETHODCALLTYPE OnSave() override { Note("OnSave"); }
    void STDMETHODCALLTYPE OnClose() override { Note("OnClose"); }

private:
    void Note(const char* call) {
        calls.push_back(call);
        if (inside) {
            inside();
        }
    }

    CReferences m_references;
};

}
