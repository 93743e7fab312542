#include "tests/component/win32/control/ControlFixture.h"
#include "tests/component/win32/control/Listener.h"

#include <cstdint>

namespace controltests {

namespace {

class PersistenceTest : public ControlFixture {
protected:
    static ComPtr<IStream> StreamOf(const std::vector<std::int32_t>& values, ULONG bytes) {
        ComPtr<IStream> stream;
        CreateStreamOnHGlobal(nullptr, TRUE, stream.GetAddressOf());
        stream->Write(values.data(), bytes, nullptr);
        Rewind(*stream.Get());
        return stream;
    }
    static void Rewind(IStream& stream) { stream.Seek({}, STREAM_SEEK_SET, nullptr); }
    static ComPtr<IStorage> EmptyStorage() {
        ComPtr<IStorage> storage;
        EXPECT_EQ(StgCreateDocfile(nullptr,
                                   STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE |
                                       STGM_DELETEONRELEASE,
                                   0, storage.GetAddressOf()),
                  S_OK);
        return storage;
    }

    ComPtr<IPersistStreamInit> Streams() { return container.As<IPersistStreamInit>(); }
    ComPtr<IPersistStorage> Storages() { return container.As<IPersistStorage>(); }
    void SetExtent(SIZEL extent) {
        EXPECT_EQ(container.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
    }
    SIZEL Extent() {
        SIZEL extent{};
        EXPECT_EQ(container.As<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
        return extent;
    }
    void ExpectExtent(LONG across, LONG down) {
        EXPECT_EQ(Extent().cx, across);
        EXPECT_EQ(Extent().cy, down);
    }
};

TEST_F(PersistenceTest, StreamBringsTheSizeBack) {
    const auto stream = StreamOf({}, 0);
    SetExtent({12345, 6789});
    EXPECT_EQ(Streams()->Save(stream.Get(), TRUE), S_OK);
    SetExtent({1, 2});
    Rewind(*stream.Get());
    EXPECT_EQ(Streams()->Load(stream.Get()), S_OK);
    ExpectExtent(12345, 6789);
}

TEST_F(PersistenceTest, StreamTakesTheBytesAnnounced) {
    const auto stream = StreamOf({}, 0);
    ULARGE_INTEGER announced{};
    EXPECT_EQ(Streams()->GetSizeMax(&announced), S_OK);
    EXPECT_EQ(Streams()->Save(stream.Get(), TRUE), S_OK);
    STATSTG status{};
    stream->Stat(&status, STATFLAG_NONAME);
    EXPECT_EQ(status.cbSize.QuadPart, announced.QuadPart);
}

struct Garbage {
    std::vector<std::int32_t> values;
    ULONG bytes;
};

class GarbageTest : public PersistenceTest, public testing::WithParamInterface<Garbage> {};

TEST_P(GarbageTest, IsRefusedAndChangesNothing) {
    SetExtent({12345, 6789});
    const auto stream = StreamOf(GetParam().values, GetParam().bytes);
    EXPECT_EQ(Streams()->Load(stream.Get()), STG_E_DOCFILECORRUPT);
    ExpectExtent(12345, 6789);
}

INSTANTIATE_TEST_SUITE_P(All, GarbageTest,
                         testing::Values(Garbage{{}, 0}, Garbage{{1, 5000, 6000}, 11},
                                         Garbage{{2, 5000, 6000}, 12}, Garbage{{1, -1, 6000}, 12},
                                         Garbage{{1, 5000, -6000}, 12}));

TEST_F(PersistenceTest, LoadIsToldToWhoKeepsAPicture) {
    CListener listener;
    const auto view = container.As<IViewObject2>();
    const auto storage = EmptyStorage();
    const auto stream = StreamOf({1, 5000, 6000}, 12);
    EXPECT_EQ(Storages()->Save(storage.Get(), TRUE), S_OK);
    view->SetAdvise(DVASPECT_CONTENT, 0, &listener);
    EXPECT_EQ(Streams()->Load(stream.Get()), S_OK);
    EXPECT_EQ(listener.calls, Calls{"OnViewChange"});
    EXPECT_EQ(Storages()->Load(storage.Get()), S_OK);
    EXPECT_EQ(listener.calls, (Calls{"OnViewChange", "OnViewChange"}));
    view->SetAdvise(0, 0, nullptr);
}

TEST_F(PersistenceTest, StreamThatFailsIsReported) {
    const auto storage = EmptyStorage();
    ComPtr<IStream> stream;
    ASSERT_EQ(storage->CreateStream(L"write", STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0, 0,
                                    stream.GetAddressOf()),
              S_OK);
    EXPECT_TRUE(FAILED(Streams()->Load(stream.Get())));
    stream.Reset();
    ASSERT_EQ(storage->OpenStream(L"write", nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0,
                                  stream.GetAddressOf()),
              S_OK);
    EXPECT_TRUE(FAILED(Streams()->Save(stream.Get(), TRUE)));
}

TEST_F(PersistenceTest, StorageBringsTheSizeBack) {
    const auto storage = EmptyStorage();
    EXPECT_EQ(Storages()->InitNew(storage.Get()), S_OK);
    SetExtent({12345, 6789});
    EXPECT_EQ(Storages()->Save(storage.Get(), TRUE), S_OK);
    EXPECT_EQ(Storages()->SaveCompleted(nullptr), S_OK);
    SetExtent({1, 2});
    EXPECT_EQ(Storages()->Load(storage.Get()), S_OK);
    ExpectExtent(12345, 6789);
    EXPECT_EQ(Storages()->HandsOffStorage(), S_OK);
}

TEST_F(PersistenceTest, StorageWithoutContentsIsRefused) {
    SetExtent({12345, 6789});
    EXPECT_EQ(Storages()->Load(EmptyStorage().Get()), STG_E_FILENOTFOUND);
    ExpectExtent(12345, 6789);
}

TEST_F(PersistenceTest, ControlIsNeverDirtyAndNamesItsClass) {
    SetExtent({12345, 6789});
    EXPECT_EQ(Streams()->IsDirty(), S_FALSE);
    EXPECT_EQ(Storages()->IsDirty(), S_FALSE);
    CLSID identifier{};
    EXPECT_EQ(Streams()->GetClassID(&identifier), S_OK);
    EXPECT_EQ(identifier, __uuidof(KRX8Maintenance));
    EXPECT_EQ(Storages()->GetClassID(&identifier), S_OK);
    EXPECT_EQ(identifier, __uuidof(KRX8Maintenance));
}

TEST_F(PersistenceTest, SavingIsToldToTheListeners) {
    CListener listener;
    DWORD cookie = 0;
    EXPECT_EQ(container.As<IOleObject>()->Advise(&listener, &cookie), S_OK);
    EXPECT_EQ(Streams()->Save(StreamOf({}, 0).Get(), TRUE), S_OK);
    EXPECT_EQ(listener.calls, Calls{"OnSave"});
    EXPECT_EQ(container.As<IOleObject>()->Unadvise(cookie), S_OK);
    EXPECT_EQ(listener.Outstanding(), 0u);
}

}

}
