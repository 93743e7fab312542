#pragma once

#include "component/win32/control/ClientSite.h"
#include "component/win32/control/Part.h"

namespace component {

/// What the control keeps in a container's file: its size. A container that does not know the
/// control's size from elsewhere gets it back.
class CPersistentState {
public:
    explicit CPersistentState(CClientSite& site) : m_site(site) {}

    HRESULT Load(IStream& stream);
    HRESULT Save(IStream& stream) const;
    static ULONG SizeBytes();

private:
    CClientSite& m_site;
};

class CPersistStreamInit final : public CPart<IPersistStreamInit> {
public:
    CPersistStreamInit(IControl& control, CClientSite& site) : CPart(control), m_state(site) {}

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* identifier) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override;
    HRESULT STDMETHODCALLTYPE Load(IStream* stream) override;
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) override;
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* bytes) override;
    HRESULT STDMETHODCALLTYPE InitNew() override;

private:
    CPersistentState m_state;
};

/// The same in a storage of its own, for containers that know no other way.
class CPersistStorage final : public CPart<IPersistStorage> {
public:
    CPersistStorage(IControl& control, CClientSite& site) : CPart(control), m_state(site) {}

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* identifier) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override;
    HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) override;
    HRESULT STDMETHODCALLTYPE Load(IStorage* storage) override;
    HRESULT STDMETHODCALLTYPE Save(IStorage* storage, BOOL sameAsLoad) override;
    HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) override;
    HRESULT STDMETHODCALLTYPE HandsOffStorage() override;

private:
    CPersistentState m_state;
};

}
