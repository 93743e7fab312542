#include "tests/component/win32/control/Canvas.h"
#include "tests/component/win32/control/ControlFixture.h"
#include "tests/component/win32/control/Listener.h"

namespace controltests {

namespace {

class ViewObjectTest : public ControlFixture {
protected:
    HRESULT Draw(HDC context, const RECT& bounds, DWORD aspect = DVASPECT_CONTENT) {
        const RECTL place{bounds.left, bounds.top, bounds.right, bounds.bottom};
        return View()->Draw(aspect, -1, nullptr, nullptr, nullptr, context, &place, nullptr,
                            nullptr, 0);
    }
    ComPtr<IViewObject2> View() { return container.As<IViewObject2>(); }

    CCanvas canvas;
    CListener listener;
};

TEST_F(ViewObjectTest, OtherAspectsAndMissingArgumentsAreRefused) {
    EXPECT_EQ(Draw(canvas.Context(), {0, 0, 10, 10}, DVASPECT_ICON), DV_E_DVASPECT);
    EXPECT_EQ(Draw(nullptr, {0, 0, 10, 10}), E_POINTER);
    EXPECT_EQ(View()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, canvas.Context(),
                           nullptr, nullptr, nullptr, 0),
              E_POINTER);
    SIZEL extent{};
    EXPECT_EQ(View()->GetExtent(DVASPECT_ICON, -1, nullptr, &extent), DV_E_DVASPECT);
}

TEST_F(ViewObjectTest, ViewChangeIsToldToTheListener) {
    EXPECT_EQ(View()->SetAdvise(DVASPECT_CONTENT, 0, &listener), S_OK);
    SIZEL extent{1000, 1000};
    container.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &extent);
    container.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &extent);
    EXPECT_EQ(listener.calls, (Calls{"OnViewChange", "OnViewChange"}));
    EXPECT_EQ(View()->SetAdvise(0, 0, nullptr), S_OK);
    EXPECT_EQ(listener.Outstanding(), 0u);
}

TEST_F(ViewObjectTest, DeactivationIsToldToTheListener) {
    StartConnected();
    View()->SetAdvise(DVASPECT_CONTENT, 0, &listener);
    listener.inside = [&] { EXPECT_EQ(container.Window(), nullptr); };
    container.As<IOleInPlaceObject>()->InPlaceDeactivate();
    EXPECT_EQ(listener.calls, Calls{"OnViewChange"});
    container.Activate();
    container.DoVerb(OLEIVERB_HIDE);
    EXPECT_EQ(listener.calls, (Calls{"OnViewChange", "OnViewChange"}));
    container.Activate();
    container.As<IOleObject>()->SetClientSite(nullptr);
    EXPECT_EQ(listener.calls.size(), 3u);
    View()->SetAdvise(0, 0, nullptr);
}

TEST_F(ViewObjectTest, CloseIsToldOnceThePictureHasChanged) {
    StartConnected();
    View()->SetAdvise(DVASPECT_CONTENT, 0, &listener);
    const HWND view = container.View();
    listener.inside = [&] { EXPECT_FALSE(IsWindow(view)); };
    container.As<IOleObject>()->Close(OLECLOSE_NOSAVE);
    EXPECT_EQ(listener.calls, Calls{"OnViewChange"});
    View()->SetAdvise(0, 0, nullptr);
}

TEST_F(ViewObjectTest, ControlLetGoOfTellsTheListenerNothing) {
    StartConnected();
    View()->SetAdvise(DVASPECT_CONTENT, 0, &listener);
    container.Release();
    EXPECT_EQ(listener.calls, Calls{});
    EXPECT_EQ(listener.Outstanding(), 0u);
}

TEST_F(ViewObjectTest, ListenerForOnceIsPrimedAndForgotten) {
    View()->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST | ADVF_ONLYONCE, &listener);
    EXPECT_EQ(listener.calls, Calls{"OnViewChange"});
    EXPECT_EQ(listener.Outstanding(), 0u);
}

TEST_F(ViewObjectTest, ListenerForOtherAspectsIsToldNothing) {
    View()->SetAdvise(DVASPECT_ICON, ADVF_PRIMEFIRST | ADVF_ONLYONCE, &listener);
    SIZEL extent{1000, 1000};
    container.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &extent);
    EXPECT_EQ(listener.calls, Calls{});
    View()->SetAdvise(0, 0, nullptr);
}

TEST_F(ViewObjectTest, ListenerIsToldBack) {
    View()->SetAdvise(DVASPECT_CONTENT, ADVF_NODATA, &listener);
    DWORD aspects = 0;
    DWORD flags = 0;
    ComPtr<IAdviseSink> sink;
    EXPECT_EQ(View()->GetAdvise(&aspects, &flags, sink.GetAddressOf()), S_OK);
    EXPECT_EQ(aspects, static_cast<DWORD>(DVASPECT_CONTENT));
    EXPECT_EQ(flags, static_cast<DWORD>(ADVF_NODATA));
    EXPECT_EQ(sink.Get(), &listener);
    EXPECT_EQ(View()->GetAdvise(nullptr, nullptr, nullptr), S_OK);
}

TEST_F(ViewObjectTest, ColoursAndFreezingAreNotOffered) {
    LOGPALETTE* colours = nullptr;
    EXPECT_EQ(View()->GetColorSet(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, &colours),
              S_FALSE);
    DWORD cookie = 0;
    EXPECT_EQ(View()->Freeze(DVASPECT_CONTENT, -1, nullptr, &cookie), E_NOTIMPL);
    EXPECT_EQ(View()->Unfreeze(1), E_NOTIMPL);
}

}

}
