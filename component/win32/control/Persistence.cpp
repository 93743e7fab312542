#include "component/win32/control/Persistence.h"

#include "component/win32/com/Identifiers.h"
#include "panel/registration/ComponentIdentity.h"

#include <cstdint>

namespace component {

namespace {

constexpr wchar_t kStreamName[] = L"Contents";
constexpr std::uint32_t kFormat = 1;

struct Record {
    std::uint32_t format;
    std::int32_t width;
    std::int32_t height;
};

HRESULT TellClass(CLSID* identifier) {
    return identifier ? (*identifier = ToGuid(panel::kMaintenanceClass), S_OK) : E_POINTER;
}

}

HRESULT CPersistentState::Load(IStream& stream) {
    Record record{};
    ULONG read = 0;
    const HRESULT result = stream.Read(&record, sizeof record, &read);
    if (FAILED(result)) {
        return result;
    }
    if (read != sizeof record || record.format != kFormat || record.width < 0 ||
        record.height < 0) {
        return STG_E_DOCFILECORRUPT;
    }
    m_site.SetExtent({record.width, record.height});
    m_site.TellViewChanged();
    return S_OK;
}

HRESULT CPersistentState::Save(IStream& stream) const {
    const SIZEL extent = m_site.GetExtent();
    const Record record{kFormat, static_cast<std::int32_t>(extent.cx),
                        static_cast<std::int32_t>(extent.cy)};
    ULONG written = 0;
    const HRESULT result = stream.Write(&record, sizeof record, &written);
    if (FAILED(result) || written != sizeof record) {
        return FAILED(result) ? result : STG_E_MEDIUMFULL;
    }
    m_site.TellSaved();
    return S_OK;
}

ULONG CPersistentState::SizeBytes() { return sizeof(Record); }

HRESULT CPersistStreamInit::GetClassID(CLSID* identifier) { return TellClass(identifier); }

// A container that has given it another size knows that itself.
HRESULT CPersistStreamInit::IsDirty() { return S_FALSE; }

HRESULT CPersistStreamInit::Load(IStream* stream) {
    return stream ? Enter([&] { return m_state.Load(*stream); }) : E_POINTER;
}

HRESULT CPersistStreamInit::Save(IStream* stream, BOOL) {
    return stream ? Enter([&] { return m_state.Save(*stream); }) : E_POINTER;
}

HRESULT CPersistStreamInit::GetSizeMax(ULARGE_INTEGER* bytes) {
    return bytes ? (bytes->QuadPart = CPersistentState::SizeBytes(), S_OK) : E_POINTER;
}

HRESULT CPersistStreamInit::InitNew() { return S_OK; }

HRESULT CPersistStorage::GetClassID(CLSID* identifier) { return TellClass(identifier); }

HRESULT CPersistStorage::IsDirty() { return S_FALSE; }

HRESULT CPersistStorage::InitNew(IStorage* storage) { return storage ? S_OK : E_POINTER; }

HRESULT CPersistStorage::Load(IStorage* storage) {
    if (!storage) {
        return E_POINTER;
    }
    return Enter([&] {
        ComPtr<IStream> stream;
        const HRESULT result = storage->OpenStream(
            kStreamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, stream.GetAddressOf());
        return FAILED(result) ? result : m_state.Load(*stream.Get());
    });
}

HRESULT CPersistStorage::Save(IStorage* storage, BOOL) {
    if (!storage) {
        return E_POINTER;
    }
    return Enter([&] {
        ComPtr<IStream> stream;
        const HRESULT result =
            storage->CreateStream(kStreamName, STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0,
                                  0, stream.GetAddressOf());
        return FAILED(result) ? result : m_state.Save(*stream.Get());
    });
}

// It holds on to no storage between two calls.
HRESULT CPersistStorage::SaveCompleted(IStorage*) { return S_OK; }

HRESULT CPersistStorage::HandsOffStorage() { return S_OK; }

}
