#include "tests/component/win32/control/ControlFixture.h"
#include "tests/component/win32/control/Listener.h"
#include "tests/frontend/win32/Panel.h"

namespace controltests {

namespace {

class OleObjectTest : public ControlFixture {
protected:
    ComPtr<IOleObject> Object() { return container.As<IOleObject>(); }

    CListener listener;
};

TEST_F(OleObjectTest, ExtentAtFirstIsThePanelsNaturalSize) {
    SIZEL extent{};
    ASSERT_EQ(Object()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    const contract::PixelSize natural = win32tests::MakePanel()->GetNaturalSize();
    const HDC screen = GetDC(nullptr);
    EXPECT_EQ(extent.cx, MulDiv(natural.width, 2540, GetDeviceCaps(screen, LOGPIXELSX)));
    EXPECT_EQ(extent.cy, MulDiv(natural.height, 2540, GetDeviceCaps(screen, LOGPIXELSY)));
    ReleaseDC(nullptr, screen);
}

TEST_F(OleObjectTest, ExtentSetIsTheOneTold) {
    SIZEL extent{20000, 10000};
    EXPECT_EQ(Object()->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
    SIZEL told{};
    EXPECT_EQ(Object()->GetExtent(DVASPECT_CONTENT, &told), S_OK);
    EXPECT_EQ(told.cx, 20000);
    EXPECT_EQ(told.cy, 10000);
    SIZEL seen{};
    EXPECT_EQ(container.As<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &seen), S_OK);
    EXPECT_EQ(seen.cx, 20000);
}

TEST_F(OleObjectTest, ExtentBelowNothingIsRefused) {
    SIZEL before{};
    Object()->GetExtent(DVASPECT_CONTENT, &before);
    for (SIZEL extent : {SIZEL{-1, 10000}, SIZEL{20000, -1}}) {
        EXPECT_EQ(Object()->SetExtent(DVASPECT_CONTENT, &extent), E_INVALIDARG);
    }
    SIZEL told{};
    EXPECT_EQ(Object()->GetExtent(DVASPECT_CONTENT, &told), S_OK);
    EXPECT_EQ(told.cx, before.cx);
    EXPECT_EQ(told.cy, before.cy);
}

TEST_F(OleObjectTest, OtherAspectsHaveNoExtent) {
    SIZEL extent{20000, 10000};
    EXPECT_EQ(Object()->SetExtent(DVASPECT_ICON, &extent), DV_E_DVASPECT);
    EXPECT_EQ(Object()->GetExtent(DVASPECT_THUMBNAIL, &extent), DV_E_DVASPECT);
}

TEST_F(OleObjectTest, MiscStatusIsThatOfTheRegistration) {
    DWORD status = 0;
    EXPECT_EQ(Object()->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, 131473u);
    EXPECT_EQ(Object()->GetMiscStatus(DVASPECT_ICON, &status), S_OK);
    EXPECT_EQ(status, 0u);
}

TEST_F(OleObjectTest, UserTypeIsACopyForTheCaller) {
    LPOLESTR name = nullptr;
    ASSERT_EQ(Object()->GetUserType(USERCLASSTYPE_FULL, &name), S_OK);
    EXPECT_STREQ(name, L"KRX8Maintenance Class");
    CoTaskMemFree(name);
}

TEST_F(OleObjectTest, UserClassIsTheClassCreated) {
    CLSID identifier{};
    EXPECT_EQ(Object()->GetUserClassID(&identifier), S_OK);
    EXPECT_EQ(identifier, __uuidof(KRX8Maintenance));
}

TEST_F(OleObjectTest, ThereAreNoVerbsForAMenu) {
    ComPtr<IEnumOLEVERB> verbs;
    EXPECT_EQ(Object()->EnumVerbs(verbs.GetAddressOf()), OLEOBJ_E_NOVERBS);
    EXPECT_EQ(verbs, nullptr);
}

TEST_F(OleObjectTest, WhatAControlDoesNotNeedIsNotThere) {
    ComPtr<IMoniker> moniker;
    ComPtr<IDataObject> data;
    EXPECT_EQ(Object()->SetMoniker(0, nullptr), E_NOTIMPL);
    EXPECT_EQ(Object()->GetMoniker(0, 0, moniker.GetAddressOf()), E_NOTIMPL);
    EXPECT_EQ(Object()->InitFromData(nullptr, FALSE, 0), E_NOTIMPL);
    EXPECT_EQ(Object()->GetClipboardData(0, data.GetAddressOf()), E_NOTIMPL);
    EXPECT_EQ(Object()->SetColorScheme(nullptr), E_NOTIMPL);
    EXPECT_EQ(Object()->SetHostNames(L"Container", nullptr), S_OK);
    EXPECT_EQ(Object()->Update(), S_OK);
    EXPECT_EQ(Object()->IsUpToDate(), S_OK);
}

TEST_F(OleObjectTest, CloseIsToldToTheListeners) {
    DWORD cookie = 0;
    ASSERT_EQ(Object()->Advise(&listener, &cookie), S_OK);
    ComPtr<IEnumSTATDATA> sinks;
    EXPECT_EQ(Object()->EnumAdvise(sinks.GetAddressOf()), S_OK);
    sinks.Reset();
    Object()->Close(OLECLOSE_NOSAVE);
    EXPECT_EQ(listener.calls, Calls{"OnClose"});
    EXPECT_EQ(Object()->Unadvise(cookie), S_OK);
    Object()->Close(OLECLOSE_NOSAVE);
    EXPECT_EQ(listener.calls, Calls{"OnClose"});
    EXPECT_EQ(listener.Outstanding(), 0u);
}

TEST_F(OleObjectTest, ControlReleasedByAListenerEnds) {
    DWORD cookie = 0;
    StartConnected();
    ASSERT_EQ(Object()->Advise(&listener, &cookie), S_OK);
    listener.inside = [&] { container.Release(); };
    IOleObject* const object = Object().Get();
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(listener.Outstanding(), 0u);
}

TEST_F(OleObjectTest, CloseHasNothingToSave) {
    Embed();
    container.Record().TakeCalls();
    Object()->Close(OLECLOSE_SAVEIFDIRTY);
    Object()->Close(OLECLOSE_PROMPTSAVE);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{});
}

}

}
