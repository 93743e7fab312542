// The picture of a control that is not active.

#include "frontend/win32/Font.h"
#include "panel/control/PanelTemplate.h"
#include "tests/component/win32/control/Canvas.h"
#include "tests/component/win32/control/ControlFixture.h"

#include <algorithm>

namespace controltests {

namespace {

class PanelPictureTest : public ControlFixture {
protected:
    HRESULT Draw(HDC context, const RECT& bounds, const RECTL* windowBounds = nullptr) {
        const RECTL place{bounds.left, bounds.top, bounds.right, bounds.bottom};
        return container.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                                  context, &place, windowBounds, nullptr, 0);
    }
    void ExpectDrawnInside(const RECT& bounds) {
        EXPECT_EQ(Draw(canvas.Context(), bounds), S_OK);
        ExpectPictureIn(bounds);
    }
    void ExpectPictureIn(const RECT& bounds) {
        EXPECT_GE(canvas.ColoursIn(bounds).size(), 4u);
        EXPECT_FALSE(canvas.ColoursIn(bounds).contains(CCanvas::kBackground));
        EXPECT_EQ(canvas.ColoursIn(bounds, false), std::set<DWORD>{CCanvas::kBackground});
    }

    /// Draws it in its natural size, in which every pixel is where the view has it.
    void DrawNatural() {
        const panel::Size size = ToPixels(panel::kPanelTemplate.size, font);
        ASSERT_LE(size.width, CCanvas::kWidth);
        ASSERT_LE(size.height, CCanvas::kHeight);
        ExpectDrawnInside({0, 0, size.width, size.height});
    }
    /// Where such a picture has a control, without its edge.
    RECT InsideOf(int id) {
        const auto& controls = panel::kPanelTemplate.controls;
        const auto control = std::ranges::find(controls, id, &panel::ControlTemplate::id);
        const panel::Rectangle place = ToPixels(control->rectangle, font);
        return {place.x + 3, place.y + 3, place.Right() - 3, place.Bottom() - 3};
    }
    bool IsTextDrawnIn(int id, int colour) {
        return canvas.ColoursIn(InsideOf(id)).contains(ToPixel(GetSysColor(colour)));
    }
    static DWORD ToPixel(COLORREF colour) {
        return static_cast<DWORD>(GetRValue(colour) << 16 | GetGValue(colour) << 8 |
                                  GetBValue(colour));
    }

    const panel::FontMetrics font = win32::MeasureFont();
    CCanvas canvas;
};

TEST_F(PanelPictureTest, ControlThatWasNeverActivatedIsDrawnInsideItsBounds) {
    ExpectDrawnInside({20, 30, 720, 530});
}

TEST_F(PanelPictureTest, PictureIsScaledToSmallBounds) { ExpectDrawnInside({5, 5, 180, 130}); }

TEST_F(PanelPictureTest, DeactivatedControlIsDrawnWithTheTextsOfItsView) {
    DrawNatural();
    EXPECT_FALSE(IsTextDrawnIn(panel::kHardwareField, COLOR_BTNTEXT));
    StartConnected();
    container.As<IOleInPlaceObject>()->InPlaceDeactivate();
    DrawNatural();
    EXPECT_TRUE(IsTextDrawnIn(panel::kHardwareField, COLOR_BTNTEXT));
}

TEST_F(PanelPictureTest, ButtonIsDrawnDisabledUntilItsViewEnablesIt) {
    DrawNatural();
    EXPECT_TRUE(IsTextDrawnIn(panel::kUpdateButton, COLOR_GRAYTEXT));
    EXPECT_FALSE(IsTextDrawnIn(panel::kUpdateButton, COLOR_BTNTEXT));
    EXPECT_TRUE(IsTextDrawnIn(panel::kCloseButton, COLOR_BTNTEXT));
    StartConnected();
    container.As<IOleInPlaceObject>()->InPlaceDeactivate();
    DrawNatural();
    EXPECT_TRUE(IsTextDrawnIn(panel::kUpdateButton, COLOR_BTNTEXT));
}

TEST_F(PanelPictureTest, CloseButtonOfABareViewIsNotDrawn) {
    container.Embed();
    ASSERT_EQ(container.Activate(), S_OK);
    ASSERT_FALSE(IsWindowVisible(container.Button(panel::kCloseButton)));
    container.As<IOleInPlaceObject>()->InPlaceDeactivate();
    DrawNatural();
    EXPECT_EQ(canvas.ColoursIn(InsideOf(panel::kCloseButton)).size(), 1u);
    EXPECT_GT(canvas.ColoursIn(InsideOf(panel::kHelpButton)).size(), 1u);
}

TEST_F(PanelPictureTest, ClosedControlIsDrawn) {
    StartConnected();
    container.As<IOleObject>()->Close(OLECLOSE_NOSAVE);
    ExpectDrawnInside({20, 30, 720, 530});
}

TEST_F(PanelPictureTest, ContextIsLeftAsItWas) {
    SetMapMode(canvas.Context(), MM_TEXT);
    SetTextColor(canvas.Context(), RGB(1, 2, 3));
    const HGDIOBJ before = GetCurrentObject(canvas.Context(), OBJ_FONT);
    Draw(canvas.Context(), {0, 0, 100, 100});
    EXPECT_EQ(GetMapMode(canvas.Context()), MM_TEXT);
    EXPECT_EQ(GetTextColor(canvas.Context()), RGB(1, 2, 3));
    EXPECT_EQ(GetCurrentObject(canvas.Context(), OBJ_FONT), before);
}

TEST_F(PanelPictureTest, MetafileIsDrawnWhereItIsPlayed) {
    constexpr RECTL kWindow{0, 0, 20000, 14000};
    const HDC recorder = CreateMetaFileW(nullptr);
    SetWindowOrgEx(recorder, kWindow.left, kWindow.top, nullptr);
    SetWindowExtEx(recorder, kWindow.right, kWindow.bottom, nullptr);
    EXPECT_EQ(Draw(recorder, {0, 0, kWindow.right, kWindow.bottom}, &kWindow), S_OK);
    const HMETAFILE file = CloseMetaFile(recorder);
    const int state = SaveDC(canvas.Context());
    SetMapMode(canvas.Context(), MM_ANISOTROPIC);
    SetViewportOrgEx(canvas.Context(), 150, 100, nullptr);
    SetViewportExtEx(canvas.Context(), 500, 350, nullptr);
    EXPECT_TRUE(PlayMetaFile(canvas.Context(), file));
    RestoreDC(canvas.Context(), state);
    DeleteMetaFile(file);
    ExpectPictureIn({150, 100, 650, 450});
}

TEST_F(PanelPictureTest, EnhancedMetafileIsDrawnWhereItIsPlayed) {
    const HDC recorder = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(Draw(recorder, {20, 30, 720, 530}), S_OK);
    const HENHMETAFILE file = CloseEnhMetaFile(recorder);
    const RECT place{150, 100, 650, 450};
    EXPECT_TRUE(PlayEnhMetaFile(canvas.Context(), file, &place));
    DeleteEnhMetaFile(file);
    // Its frame and the place that it is played into are rounded to whole pixels.
    RECT around = place;
    InflateRect(&around, 1, 1);
    EXPECT_GE(canvas.ColoursIn(place).size(), 4u);
    EXPECT_FALSE(canvas.ColoursIn(place).contains(CCanvas::kBackground));
    EXPECT_EQ(canvas.ColoursIn(around, false), std::set<DWORD>{CCanvas::kBackground});
}

}

}
