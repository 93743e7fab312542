#include "tests/component/win32/control/ControlFixture.h"

#include <algorithm>

namespace controltests {

namespace {

class LifeTest : public ControlFixture {
protected:
    ComPtr<IOleObject> Object() { return container.As<IOleObject>(); }
};

TEST_F(LifeTest, ControlThatNobodyEmbedsLeavesNothing) {
    EXPECT_EQ(CountControlWindows(), 0);
    container.Release();
}

TEST_F(LifeTest, ControlThatIsNeverActivatedHasNoWindow) {
    Embed();
    Connect();
    EXPECT_EQ(CountControlWindows(), 0);
    LONG type = 0;
    EXPECT_EQ(container.As<IKRX8Maintenance>()->get_DeviceType(&type), S_OK);
    EXPECT_EQ(type, 4);
}

TEST_F(LifeTest, ReleaseWhileActiveTellsTheSite) {
    StartConnected();
    container.ActivateForUser();
    container.Record().TakeCalls();
    container.Release();
    EXPECT_EQ(container.Record().TakeCalls(),
              (Calls{"OnFocus(false)", "frame.SetActiveObject(null)",
                     "document.SetActiveObject(null)", "OnUIDeactivate", "OnInPlaceDeactivate"}));
}

TEST_F(LifeTest, ClientSiteTakenAwayDeactivatesAndIsLetGo) {
    StartConnected();
    container.ActivateForUser();
    EXPECT_EQ(Object()->SetClientSite(nullptr), S_OK);
    EXPECT_EQ(container.Window(), nullptr);
    EXPECT_EQ(container.Site().Outstanding(), 0u);
    ComPtr<IOleClientSite> site;
    EXPECT_EQ(Object()->GetClientSite(site.GetAddressOf()), S_OK);
    EXPECT_EQ(site, nullptr);
}

TEST_F(LifeTest, OtherClientSiteDeactivatesInTheFormerOne) {
    Start();
    CSite other(window->Get());
    container.Record().TakeCalls();
    EXPECT_EQ(Object()->SetClientSite(&other), S_OK);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{"OnInPlaceDeactivate"});
    EXPECT_EQ(container.Site().Outstanding(), 0u);
    EXPECT_EQ(container.Activate(), S_OK);
    EXPECT_THAT(other.Record().TakeCalls(), testing::Contains("OnInPlaceActivate"));
    container.Release();
    EXPECT_EQ(other.Outstanding(), 0u);
}

TEST_F(LifeTest, SecondCloseTellsTheSiteNothing) {
    StartConnected();
    EXPECT_EQ(Object()->Close(OLECLOSE_NOSAVE), S_OK);
    container.Record().TakeCalls();
    EXPECT_EQ(Object()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{});
}

TEST_F(LifeTest, ClosedControlIsNotActivatedAgainAndAsksTheSiteNothing) {
    StartConnected();
    EXPECT_EQ(Object()->Close(OLECLOSE_NOSAVE), S_OK);
    container.Record().TakeCalls();
    EXPECT_EQ(container.Activate(), E_UNEXPECTED);
    EXPECT_EQ(container.ActivateForUser(), E_UNEXPECTED);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{});
}

TEST_F(LifeTest, ControlClosedBeforeItWasActivatedIsNotActivated) {
    Embed();
    EXPECT_EQ(Object()->Close(OLECLOSE_NOSAVE), S_OK);
    container.Record().TakeCalls();
    EXPECT_EQ(container.Activate(), E_UNEXPECTED);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{});
}

TEST_F(LifeTest, CallsAfterCloseFailOrDoNothing) {
    StartConnected();
    EXPECT_EQ(Object()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(container.DoVerb(OLEIVERB_HIDE), S_OK);
    const auto inPlace = container.As<IOleInPlaceObject>();
    EXPECT_EQ(inPlace->UIDeactivate(), S_OK);
    EXPECT_EQ(inPlace->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(inPlace->SetObjectRects(&container.Site().place, nullptr), E_UNEXPECTED);
    EXPECT_EQ(container.As<IGoClient>()->Go(), S_OK);
    MSG key{window->Get(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_EQ(container.As<IOleInPlaceActiveObject>()->TranslateAccelerator(&key), S_FALSE);
    EXPECT_EQ(container.As<IOleControl>()->OnMnemonic(&key), S_OK);
    host->RaiseState(5);
    host->RaiseState(7);
}

TEST_F(LifeTest, ParentWindowDestroyedFirstTakesTheViewAlong) {
    StartConnected();
    container.ActivateForUser();
    window.reset();
    EXPECT_EQ(container.Window(), nullptr);
    EXPECT_EQ(CountControlWindows(), 0);
    host->RaiseState(7);
    EXPECT_EQ(container.Activate(), E_UNEXPECTED);
    EXPECT_THAT(container.Record().TakeCalls(), testing::Contains("OnInPlaceDeactivate"));
    EXPECT_EQ(container.Activate(), E_UNEXPECTED);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{});
    EXPECT_EQ(container.As<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
}

TEST_F(LifeTest, ParentWindowDestroyedWhileParkedLeavesTheView) {
    StartConnected();
    container.As<IOleInPlaceObject>()->InPlaceDeactivate();
    window.reset();
    const win32tests::CHostWindow other;
    container.Site().offeredWindow = other.Get();
    EXPECT_EQ(container.Activate(), S_OK);
    EXPECT_TRUE(IsWindowVisible(container.View()));
    container.Release();
}

TEST_F(LifeTest, ActivationWithoutClientSiteTakesTheSiteOfTheVerb) {
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    EXPECT_TRUE(IsWindowVisible(container.View()));
    MSG key{container.View(), WM_KEYDOWN, 'A', 0, 0, {}};
    EXPECT_EQ(container.As<IOleInPlaceActiveObject>()->TranslateAccelerator(&key), S_FALSE);
}

TEST_F(LifeTest, ActivationWithoutAnySiteFails) {
    EXPECT_EQ(Object()->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), E_UNEXPECTED);
}

/// The ways in which a container ends, each of them a letter.
void TakeStep(char step, CContainer& container, std::optional<win32tests::CHostWindow>& window) {
    const auto object = container.As<IOleObject>();
    switch (step) {
    case 'c':
        static_cast<void>(object && object->Close(OLECLOSE_NOSAVE));
        break;
    case 'd':
        window.reset();
        break;
    case 'i':
        static_cast<void>(object && container.As<IOleInPlaceObject>()->InPlaceDeactivate());
        break;
    case 'r':
        container.Release();
        break;
    case 's':
        static_cast<void>(object && object->SetClientSite(nullptr));
        break;
    case 'u':
        static_cast<void>(object && container.As<IOleInPlaceObject>()->UIDeactivate());
        break;
    }
}

TEST_F(LifeTest, StepsOfTheEndMayComeInEveryOrder) {
    container.Release();
    std::string steps = "cdirsu";
    do {
        // What comes after the release is the same for all orders.
        if (!std::is_sorted(steps.begin() + static_cast<long>(steps.find('r')), steps.end())) {
            continue;
        }
        SCOPED_TRACE(steps);
        std::optional<win32tests::CHostWindow> own(std::in_place);
        CContainer ending(library, own->Get());
        ending.Embed();
        EXPECT_EQ(ending.ActivateForUser(), S_OK);
        for (const char step : steps) {
            TakeStep(step, ending, own);
        }
        ending.Pump();
        EXPECT_EQ(ending.Site().Outstanding(), 0u);
        ExpectNothingLeft();
    } while (std::next_permutation(steps.begin(), steps.end()));
}

}

}
