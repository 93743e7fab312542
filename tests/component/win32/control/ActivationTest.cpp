#include "tests/component/win32/control/ControlFixture.h"

#include "panel/control/PanelTemplate.h"
#include "tests/frontend/win32/Input.h"

namespace controltests {

namespace {

class ActivationTest : public ControlFixture {
protected:
    /// Where the control's window is, in its parent's client area.
    RECT Place() {
        RECT place{};
        GetWindowRect(container.Window(), &place);
        MapWindowPoints(nullptr, GetParent(container.Window()), reinterpret_cast<POINT*>(&place),
                        2);
        return place;
    }
    RECT ViewArea() {
        RECT area{};
        GetClientRect(container.View(), &area);
        return area;
    }
    /// A field of the host's beside the control; it has the keyboard.
    HWND MakeHostField() {
        const HWND field = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0,
                                           0, 100, 15, window->Get(), nullptr, nullptr, nullptr);
        SetFocus(field);
        return field;
    }
    ComPtr<IOleInPlaceObject> InPlace() { return container.As<IOleInPlaceObject>(); }
};

bool AreEqual(const RECT& one, const RECT& other) { return EqualRect(&one, &other) != FALSE; }

TEST_F(ActivationTest, InPlaceActivationAsksTheSiteInOrder) {
    Embed();
    container.Record().TakeCalls();
    EXPECT_EQ(container.Activate(), S_OK);
    EXPECT_EQ(container.Record().TakeCalls(),
              (Calls{"CanInPlaceActivate", "OnInPlaceActivate", "GetWindow", "GetWindowContext",
                     "ShowObject"}));
}

TEST_F(ActivationTest, InPlaceActiveControlStandsInTheSitesPlace) {
    Start();
    EXPECT_EQ(GetParent(container.Window()), window->Get());
    EXPECT_TRUE(IsWindowVisible(container.View()));
    EXPECT_TRUE(AreEqual(Place(), container.Site().place));
    EXPECT_TRUE(AreEqual(ViewArea(), {0, 0, 700, 500}));
}

TEST_F(ActivationTest, UiActivationMakesItTheFramesActiveObject) {
    Start();
    container.Record().TakeCalls();
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    const Calls calls = container.Record().TakeCalls();
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.front(), "OnUIActivate");
    EXPECT_THAT(calls,
                testing::IsSupersetOf({"frame.SetActiveObject", "frame.SetBorderSpace",
                                       "document.SetActiveObject", "document.SetBorderSpace"}));
    EXPECT_EQ(container.Site().Frame().Active(), container.As<IOleInPlaceActiveObject>().Get());
    EXPECT_TRUE(IsChild(container.Window(), GetFocus()));
}

TEST_F(ActivationTest, UiActivationOfAnInactiveControlActivatesItInPlaceFirst) {
    Embed();
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    EXPECT_TRUE(IsWindowVisible(container.View()));
    EXPECT_NE(container.Site().Frame().Active(), nullptr);
}

TEST_F(ActivationTest, SecondUiActivationTellsTheSiteNothing) {
    Start();
    container.ActivateForUser();
    container.Record().TakeCalls();
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{});
}

class ShowingVerbTest : public ActivationTest, public testing::WithParamInterface<LONG> {};

TEST_P(ShowingVerbTest, ActivatesItForTheUser) {
    Embed();
    EXPECT_EQ(container.DoVerb(GetParam()), S_OK);
    EXPECT_NE(container.Site().Frame().Active(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(All, ShowingVerbTest,
                         testing::Values(OLEIVERB_PRIMARY, OLEIVERB_SHOW, OLEIVERB_OPEN,
                                         OLEIVERB_UIACTIVATE));

TEST_F(ActivationTest, HideVerbDeactivatesAndTellsTheSite) {
    Start();
    container.ActivateForUser();
    container.Record().TakeCalls();
    EXPECT_EQ(container.DoVerb(OLEIVERB_HIDE), S_OK);
    EXPECT_THAT(
        container.Record().TakeCalls(),
        testing::IsSupersetOf({"OnUIDeactivate", "OnInPlaceDeactivate", "OnShowWindow(false)"}));
    EXPECT_EQ(container.Window(), nullptr);
}

TEST_F(ActivationTest, HideVerbOfAControlThatIsNotShownTellsTheSiteNothing) {
    Embed();
    container.Record().TakeCalls();
    EXPECT_EQ(container.DoVerb(OLEIVERB_HIDE), S_OK);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{});
}

TEST_F(ActivationTest, UnknownVerbsAreRefusedAndActivateNothing) {
    Embed();
    EXPECT_EQ(container.DoVerb(-100), E_NOTIMPL);
    EXPECT_EQ(container.DoVerb(1), OLEOBJ_S_INVALIDVERB);
    EXPECT_EQ(container.DoVerb(OLEIVERB_DISCARDUNDOSTATE), S_OK);
    EXPECT_EQ(container.Window(), nullptr);
}

TEST_F(ActivationTest, ViewFollowsTheRectanglesOfTheContainer) {
    Start();
    const RECT place{30, 40, 930, 640};
    EXPECT_EQ(InPlace()->SetObjectRects(&place, &place), S_OK);
    EXPECT_TRUE(AreEqual(Place(), place));
    EXPECT_TRUE(AreEqual(ViewArea(), {0, 0, 900, 600}));
}

TEST_F(ActivationTest, WindowIsCutOffWhereTheClipEnds) {
    Start();
    const RECT place{30, 40, 930, 640};
    const RECT clip{0, 0, 130, 240};
    EXPECT_EQ(InPlace()->SetObjectRects(&place, &clip), S_OK);
    RECT region{};
    ASSERT_NE(GetWindowRgnBox(container.Window(), &region), ERROR);
    EXPECT_TRUE(AreEqual(region, {0, 0, 100, 200}));
    EXPECT_TRUE(AreEqual(ViewArea(), {0, 0, 900, 600}));
}

TEST_F(ActivationTest, ClipAroundThePlaceLeavesTheWindowWhole) {
    Start();
    const RECT place{30, 40, 930, 640};
    const RECT clip{0, 0, 130, 240};
    InPlace()->SetObjectRects(&place, &clip);
    EXPECT_EQ(InPlace()->SetObjectRects(&place, nullptr), S_OK);
    RECT region{};
    EXPECT_EQ(GetWindowRgnBox(container.Window(), &region), ERROR);
}

TEST_F(ActivationTest, UiDeactivationKeepsItInPlaceWithoutTheFrame) {
    Start();
    container.ActivateForUser();
    container.Record().TakeCalls();
    EXPECT_EQ(InPlace()->UIDeactivate(), S_OK);
    EXPECT_THAT(container.Record().TakeCalls(),
                testing::IsSupersetOf({"frame.SetActiveObject(null)",
                                       "document.SetActiveObject(null)", "OnUIDeactivate"}));
    EXPECT_TRUE(IsWindowVisible(container.View()));
    EXPECT_EQ(container.Site().Frame().Active(), nullptr);
}

TEST_F(ActivationTest, InPlaceDeactivationHidesItAndLetsGoOfTheFrame) {
    Start();
    container.ActivateForUser();
    const HWND view = container.View();
    EXPECT_EQ(InPlace()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(container.Window(), nullptr);
    EXPECT_TRUE(IsWindow(view));
    EXPECT_FALSE(IsWindowVisible(view));
    EXPECT_EQ(container.Site().Frame().Outstanding(), 0u);
    EXPECT_EQ(CountControlWindows(), 1);
}

TEST_F(ActivationTest, ControlActivatedAgainShowsWhatItShowedBefore) {
    StartConnected();
    const HWND view = container.View();
    InPlace()->InPlaceDeactivate();
    EXPECT_EQ(container.Activate(), S_OK);
    EXPECT_EQ(container.View(), view);
    EXPECT_TRUE(IsWindowVisible(view));
    EXPECT_EQ(User().ShownText(panel::kHardwareField), "HW 2.1");
    EXPECT_EQ(User().ShownCell(panel::kFileList, 1, 0), "beta.fia");
}

TEST_F(ActivationTest, ControlActivatedAgainElsewhereMovesThere) {
    Start();
    const win32tests::CHostWindow other;
    InPlace()->InPlaceDeactivate();
    container.Site().offeredWindow = other.Get();
    container.Site().place = {0, 0, 720, 450};
    EXPECT_EQ(container.Activate(), S_OK);
    EXPECT_EQ(GetParent(container.Window()), other.Get());
    EXPECT_TRUE(AreEqual(ViewArea(), {0, 0, 720, 450}));
    container.As<IOleObject>()->Close(OLECLOSE_NOSAVE);
}

TEST_F(ActivationTest, DeviceReadWhileInactiveIsShownAfterwards) {
    Start();
    InPlace()->InPlaceDeactivate();
    Connect();
    EXPECT_EQ(container.Activate(), S_OK);
    EXPECT_EQ(User().ShownText(panel::kHardwareField), "HW 2.1");
}

TEST_F(ActivationTest, ClickMakesItActiveForTheUser) {
    Start();
    ASSERT_EQ(container.Site().Frame().Active(), nullptr);
    win32tests::ClickCentre(container.Button(panel::kStatusLog));
    container.Pump();
    EXPECT_EQ(container.Site().Frame().Active(), container.As<IOleInPlaceActiveObject>().Get());
    EXPECT_EQ(GetFocus(), container.Button(panel::kStatusLog));
}

TEST_F(ActivationTest, FocusGivenToItsWindowMakesItActiveForTheUser) {
    Start();
    SetFocus(container.Window());
    EXPECT_NE(container.Site().Frame().Active(), nullptr);
    EXPECT_TRUE(IsChild(container.Window(), GetFocus()));
}

TEST_F(ActivationTest, DeviceThatConnectsLeavesTheKeyboardInTheHostsField) {
    const HWND field = MakeHostField();
    Start();
    Connect();
    EXPECT_EQ(GetFocus(), field);
    EXPECT_EQ(container.Site().Frame().Active(), nullptr);
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    EXPECT_EQ(GetFocus(), container.Button(panel::kUpdateButton));
}

TEST_F(ActivationTest, DeviceThatConnectsLeavesTheKeyboardInTheHostsWindow) {
    SetFocus(window->Get());
    StartConnected();
    EXPECT_EQ(GetFocus(), window->Get());
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    EXPECT_EQ(GetFocus(), container.Button(panel::kUpdateButton));
}

TEST_F(ActivationTest, DeviceLostAndFoundLeavesTheKeyboardInTheHostsField) {
    const HWND field = MakeHostField();
    StartConnected();
    container.ActivateForUser();
    host->RaiseState(5);
    SetFocus(field);
    host->RaiseState(7);
    container.Pump();
    EXPECT_EQ(GetFocus(), field);
}

TEST_F(ActivationTest, DeviceThatConnectsGivesTheKeyboardToAControlActiveForTheUser) {
    Start();
    container.ActivateForUser();
    ASSERT_EQ(GetFocus(), container.View());
    SetFocus(window->Get()); // as the system does when the frame becomes active again
    Connect();
    EXPECT_EQ(GetFocus(), container.Button(panel::kUpdateButton));
}

TEST_F(ActivationTest, SiteIsToldOfFocusWithUiActivation) {
    Start();
    container.Record().TakeCalls();
    container.ActivateForUser();
    EXPECT_THAT(container.Record().TakeCalls(), testing::Contains("OnFocus(true)"));
    InPlace()->UIDeactivate();
    EXPECT_THAT(container.Record().TakeCalls(), testing::Contains("OnFocus(false)"));
}

TEST_F(ActivationTest, TwoControlsBesideEachOtherAreIndependent) {
    StartConnected();
    CContainer second(library, window->Get());
    second.Embed();
    second.Site().place = {10, 520, 710, 1000};
    ASSERT_EQ(second.Activate(), S_OK);
    EXPECT_EQ(CountControlWindows(), 2);
    EXPECT_NE(second.View(), container.View());
    container.As<IOleObject>()->Close(OLECLOSE_NOSAVE);
    EXPECT_EQ(CountControlWindows(), 1);
    EXPECT_TRUE(IsWindowVisible(second.View()));
    second.Release();
    EXPECT_EQ(second.Site().Outstanding(), 0u);
}

}

}
