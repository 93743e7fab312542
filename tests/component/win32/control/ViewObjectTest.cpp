#include "tests/component/win32/control/ControlFixture.h"
#include "tests/component/win32/control/Listener.h"

#include <set>

namespace controltests {

namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr COLORREF kBackground = RGB(255, 0, 255);

/// A picture in memory, of one colour at first.
class CCanvas {
public:
    CCanvas() {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<const DWORD*>(bits);
        m_before = SelectObject(m_context, m_bitmap);
        const RECT whole{0, 0, kWidth, kHeight};
        const HBRUSH brush = CreateSolidBrush(kBackground);
        FillRect(m_context, &whole, brush);
        DeleteObject(brush);
    }
    ~CCanvas() {
        SelectObject(m_context, m_before);
        DeleteObject(m_bitmap);
        DeleteDC(m_context);
    }
    CCanvas(const CCanvas&) = delete;
    CCanvas& operator=(const CCanvas&) = delete;

    HDC Context() const { return m_context; }
    std::vector<DWORD> Pixels() const { return {m_pixels, m_pixels + kWidth * kHeight}; }

    std::set<DWORD> ColoursIn(const RECT& area, bool isInside) const {
        std::set<DWORD> colours;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                if ((PtInRect(&area, {x, y}) != FALSE) == isInside) {
                    colours.insert(m_pixels[y * kWidth + x] & 0xFFFFFF);
                }
            }
        }
        return colours;
    }

private:
    const HDC m_context = CreateCompatibleDC(nullptr);
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
    const DWORD* m_pixels;
};

class ViewObjectTest : public ControlFixture {
protected:
    HRESULT Draw(HDC context, const RECT& bounds, DWORD aspect = DVASPECT_CONTENT) {
        const RECTL place{bounds.left, bounds.top, bounds.right, bounds.bottom};
        return View()->Draw(aspect, -1, nullptr, nullptr, nullptr, context, &place, nullptr,
                            nullptr, 0);
    }
    void ExpectDrawnInside(const RECT& bounds) {
        EXPECT_EQ(Draw(canvas.Context(), bounds), S_OK);
        EXPECT_GE(canvas.ColoursIn(bounds, true).size(), 4u);
        EXPECT_FALSE(canvas.ColoursIn(bounds, true).contains(0xFF00FF));
        EXPECT_EQ(canvas.ColoursIn(bounds, false), std::set<DWORD>{0xFF00FF});
    }
    ComPtr<IViewObject2> View() { return container.As<IViewObject2>(); }

    CCanvas canvas;
    CListener listener;
};

TEST_F(ViewObjectTest, ControlThatWasNeverActivatedIsDrawnInsideItsBounds) {
    ExpectDrawnInside({20, 30, 720, 530});
}

TEST_F(ViewObjectTest, PictureIsScaledToSmallBounds) { ExpectDrawnInside({5, 5, 180, 130}); }

TEST_F(ViewObjectTest, DeactivatedControlIsDrawnWithTheTextsOfItsView) {
    const RECT bounds{20, 30, 720, 530};
    Draw(canvas.Context(), bounds);
    const std::vector<DWORD> before = canvas.Pixels();
    StartConnected();
    container.As<IOleInPlaceObject>()->InPlaceDeactivate();
    ExpectDrawnInside(bounds);
    EXPECT_NE(canvas.Pixels(), before);
}

TEST_F(ViewObjectTest, ClosedControlIsDrawn) {
    StartConnected();
    container.As<IOleObject>()->Close(OLECLOSE_NOSAVE);
    ExpectDrawnInside({20, 30, 720, 530});
}

TEST_F(ViewObjectTest, ContextIsLeftAsItWas) {
    SetMapMode(canvas.Context(), MM_TEXT);
    SetTextColor(canvas.Context(), RGB(1, 2, 3));
    const HGDIOBJ font = GetCurrentObject(canvas.Context(), OBJ_FONT);
    Draw(canvas.Context(), {0, 0, 100, 100});
    EXPECT_EQ(GetMapMode(canvas.Context()), MM_TEXT);
    EXPECT_EQ(GetTextColor(canvas.Context()), RGB(1, 2, 3));
    EXPECT_EQ(GetCurrentObject(canvas.Context(), OBJ_FONT), font);
}

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
