// What a host should not do: null pointers, and calls from other threads.

#include "tests/component/win32/control/ControlFixture.h"
#include "tests/component/win32/control/Listener.h"

#include <thread>

namespace controltests {

namespace {

class BadCallTest : public ControlFixture {
protected:
    /// What a call returns on another thread.
    template <class Operation>
    HRESULT Elsewhere(Operation operation) {
        HRESULT result = S_OK;
        std::thread([&] { result = operation(); }).join();
        return result;
    }
};

TEST_F(BadCallTest, NullResultsOfTheObjectAreRefused) {
    const auto object = container.As<IOleObject>();
    EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(object->GetClientSite(nullptr), E_POINTER);
    EXPECT_EQ(object->GetMoniker(0, 0, nullptr), E_POINTER);
    EXPECT_EQ(object->GetClipboardData(0, nullptr), E_POINTER);
    EXPECT_EQ(object->EnumVerbs(nullptr), E_POINTER);
    EXPECT_EQ(object->GetUserClassID(nullptr), E_POINTER);
    EXPECT_EQ(object->GetUserType(USERCLASSTYPE_FULL, nullptr), E_POINTER);
    EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
    EXPECT_EQ(object->GetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
    EXPECT_EQ(object->Advise(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(object->EnumAdvise(nullptr), E_POINTER);
    EXPECT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, nullptr), E_POINTER);
}

TEST_F(BadCallTest, NullResultsOfTheControlInPlaceAreRefused) {
    EXPECT_EQ(container.As<IOleInPlaceObject>()->GetWindow(nullptr), E_POINTER);
    EXPECT_EQ(container.As<IOleInPlaceObject>()->SetObjectRects(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(container.As<IOleInPlaceActiveObject>()->GetWindow(nullptr), E_POINTER);
    EXPECT_EQ(container.As<IOleInPlaceActiveObject>()->TranslateAccelerator(nullptr), E_POINTER);
    EXPECT_EQ(container.As<IOleControl>()->GetControlInfo(nullptr), E_POINTER);
    EXPECT_EQ(container.As<IOleControl>()->OnMnemonic(nullptr), E_POINTER);
    const auto view = container.As<IViewObject2>();
    EXPECT_EQ(view->GetExtent(DVASPECT_CONTENT, -1, nullptr, nullptr), E_POINTER);
    EXPECT_EQ(view->GetColorSet(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr),
              E_POINTER);
}

TEST_F(BadCallTest, NullStreamsStoragesAndClassesAreRefused) {
    const auto streams = container.As<IPersistStreamInit>();
    EXPECT_EQ(streams->GetClassID(nullptr), E_POINTER);
    EXPECT_EQ(streams->Load(nullptr), E_POINTER);
    EXPECT_EQ(streams->Save(nullptr, TRUE), E_POINTER);
    EXPECT_EQ(streams->GetSizeMax(nullptr), E_POINTER);
    const auto storages = container.As<IPersistStorage>();
    EXPECT_EQ(storages->GetClassID(nullptr), E_POINTER);
    EXPECT_EQ(storages->InitNew(nullptr), E_POINTER);
    EXPECT_EQ(storages->Load(nullptr), E_POINTER);
    EXPECT_EQ(storages->Save(nullptr, TRUE), E_POINTER);
    EXPECT_EQ(container.As<IProvideClassInfo2>()->GetClassInfo(nullptr), E_POINTER);
    EXPECT_EQ(container.As<IProvideClassInfo2>()->GetGUID(1, nullptr), E_POINTER);
}

TEST_F(BadCallTest, NullResultsOfAutomationAreRefused) {
    const auto automation = container.As<IKRX8Maintenance>();
    EXPECT_EQ(automation->get_DeviceType(nullptr), E_POINTER);
    EXPECT_EQ(automation->get_DeviceMode(nullptr), E_POINTER);
    EXPECT_EQ(automation->GetTypeInfoCount(nullptr), E_POINTER);
    EXPECT_EQ(automation->GetTypeInfo(0, 0, nullptr), E_POINTER);
    EXPECT_EQ(automation->GetIDsOfNames(IID_NULL, nullptr, 1, 0, nullptr), E_POINTER);
    EXPECT_EQ(automation->Invoke(1, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, nullptr, nullptr,
                                 nullptr),
              E_POINTER);
}

TEST_F(BadCallTest, NullContextAndConnectionAreTakenAsTheContractSays) {
    EXPECT_EQ(container.As<IContextMember>()->SetContext(nullptr), E_POINTER);
    EXPECT_EQ(container.As<IContextMember>()->SetContextAndRegister(nullptr), E_POINTER);
    EXPECT_EQ(container.As<IConnectionClient>()->SetConnection(nullptr), S_OK);
    prompts.ExpectBox(IDOK);
    EXPECT_EQ(container.As<ISetSubsystemAccess>()->SetSubsystemAccess(nullptr), E_POINTER);
}

TEST_F(BadCallTest, CallsOnAnotherThreadAreRefused) {
    StartConnected();
    SIZEL extent{1, 1};
    const auto object = container.As<IOleObject>();
    EXPECT_EQ(Elsewhere([&] { return object->SetClientSite(nullptr); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return object->Close(OLECLOSE_NOSAVE); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return object->SetExtent(DVASPECT_CONTENT, &extent); }),
              RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return container.ActivateForUser(); }), RPC_E_WRONG_THREAD);
    const auto inPlace = container.As<IOleInPlaceObject>();
    EXPECT_EQ(Elsewhere([&] { return inPlace->InPlaceDeactivate(); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return inPlace->UIDeactivate(); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return inPlace->SetObjectRects(&container.Site().place, nullptr); }),
              RPC_E_WRONG_THREAD);
    EXPECT_TRUE(IsWindowVisible(container.View()));
}

TEST_F(BadCallTest, HostsCallsOnAnotherThreadAreRefused) {
    StartConnected();
    const auto client = container.As<IConnectionClient>();
    const auto start = container.As<IGoClient>();
    const auto member = container.As<IContextMember>();
    const auto access = container.As<ISetSubsystemAccess>();
    EXPECT_EQ(Elsewhere([&] { return client->SetConnection(nullptr); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return start->Go(); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return member->SetContext(nullptr); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return access->SetSubsystemAccess(nullptr); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(host->SubscriberCount(), 1u);
}

TEST_F(BadCallTest, QuestionsOnAnotherThreadAreRefused) {
    Start();
    const auto automation = container.As<IKRX8Maintenance>();
    const auto object = container.As<IOleObject>();
    const auto view = container.As<IViewObject2>();
    LONG value = -5;
    SIZEL extent{-5, -5};
    EXPECT_EQ(Elsewhere([&] { return automation->get_DeviceType(&value); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return automation->get_DeviceMode(&value); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(value, -5);
    EXPECT_EQ(Elsewhere([&] { return object->GetExtent(DVASPECT_CONTENT, &extent); }),
              RPC_E_WRONG_THREAD);
    EXPECT_EQ(Elsewhere([&] { return view->GetExtent(DVASPECT_CONTENT, -1, nullptr, &extent); }),
              RPC_E_WRONG_THREAD);
    EXPECT_EQ(extent.cx, -5);
}

TEST_F(BadCallTest, NoObjectOrWindowIsDeliveredToAnotherThread) {
    Start();
    const auto object = container.As<IOleObject>();
    const auto view = container.As<IViewObject2>();
    IOleClientSite* site = reinterpret_cast<IOleClientSite*>(8);
    EXPECT_EQ(Elsewhere([&] { return object->GetClientSite(&site); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(site, nullptr);
    IAdviseSink* sink = reinterpret_cast<IAdviseSink*>(8);
    EXPECT_EQ(Elsewhere([&] { return view->GetAdvise(nullptr, nullptr, &sink); }),
              RPC_E_WRONG_THREAD);
    EXPECT_EQ(sink, nullptr);
    const auto inPlace = container.As<IOleInPlaceObject>();
    const auto active = container.As<IOleInPlaceActiveObject>();
    HWND found = window->Get();
    EXPECT_EQ(Elsewhere([&] { return inPlace->GetWindow(&found); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(found, nullptr);
    found = window->Get();
    EXPECT_EQ(Elsewhere([&] { return active->GetWindow(&found); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(found, nullptr);
}

TEST_F(BadCallTest, ListenersOnAnotherThreadAreRefused) {
    CListener listener;
    const auto object = container.As<IOleObject>();
    DWORD cookie = 5;
    IEnumSTATDATA* listeners = reinterpret_cast<IEnumSTATDATA*>(8);
    EXPECT_EQ(Elsewhere([&] { return object->Advise(&listener, &cookie); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(cookie, 0u);
    EXPECT_EQ(Elsewhere([&] { return object->EnumAdvise(&listeners); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(listeners, nullptr);
    ASSERT_EQ(object->Advise(&listener, &cookie), S_OK);
    EXPECT_EQ(Elsewhere([&] { return object->Unadvise(cookie); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(object->Unadvise(cookie), S_OK);
}

TEST_F(BadCallTest, TypeInformationOnAnotherThreadIsRefused) {
    const auto automation = container.As<IDispatch>();
    const auto provider = container.As<IProvideClassInfo2>();
    ITypeInfo* info = reinterpret_cast<ITypeInfo*>(8);
    EXPECT_EQ(Elsewhere([&] { return automation->GetTypeInfo(0, 0, &info); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(info, nullptr);
    EXPECT_EQ(Elsewhere([&] { return provider->GetClassInfo(&info); }), RPC_E_WRONG_THREAD);
    EXPECT_EQ(info, nullptr);
}

}

}
