// A site that refuses what the control asks of it, or does something else inside.

#include "tests/component/win32/control/ControlFixture.h"
#include "tests/frontend/win32/Input.h"

#include <algorithm>

namespace controltests {

namespace {

class UnwillingSiteTest : public ControlFixture {
protected:
    ComPtr<IOleObject> Object() { return container.As<IOleObject>(); }
};

using Name = const char*;

class NeededCallTest : public UnwillingSiteTest, public testing::WithParamInterface<Name> {};

TEST_P(NeededCallTest, FailingKeepsTheControlOutUntilItSucceeds) {
    Embed();
    container.Record().Answer(GetParam(), E_ACCESSDENIED);
    EXPECT_EQ(container.Activate(), E_ACCESSDENIED);
    EXPECT_EQ(container.Window(), nullptr);
    // The site itself is held as the client's.
    EXPECT_EQ(container.Site().Outstanding(), 1u);
    container.Record().AnswerAsUsual();
    EXPECT_EQ(container.Activate(), S_OK);
    EXPECT_NE(container.Window(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(All, NeededCallTest,
                         testing::Values("CanInPlaceActivate", "OnInPlaceActivate", "GetWindow",
                                         "GetWindowContext"));

class UnneededCallTest : public UnwillingSiteTest, public testing::WithParamInterface<Name> {};

TEST_P(UnneededCallTest, FailingChangesNothing) {
    Embed();
    container.Record().Answer(GetParam(), E_ACCESSDENIED);
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    EXPECT_TRUE(IsWindowVisible(container.View()));
    EXPECT_EQ(container.DoVerb(OLEIVERB_HIDE), S_OK);
    EXPECT_EQ(container.Window(), nullptr);
    EXPECT_EQ(container.Site().Outstanding(), 1u);
}

INSTANTIATE_TEST_SUITE_P(All, UnneededCallTest,
                         testing::Values("ShowObject", "OnShowWindow(false)",
                                         "frame.SetActiveObject", "frame.SetBorderSpace",
                                         "frame.SetActiveObject(null)", "document.SetActiveObject",
                                         "document.SetBorderSpace",
                                         "document.SetActiveObject(null)", "OnFocus(true)",
                                         "OnFocus(false)", "OnUIDeactivate",
                                         "OnInPlaceDeactivate"));

TEST_F(UnwillingSiteTest, RefusedUiActivationLeavesItInPlace) {
    Embed();
    container.Record().Answer("OnUIActivate", E_ACCESSDENIED);
    EXPECT_EQ(container.ActivateForUser(), E_ACCESSDENIED);
    EXPECT_TRUE(IsWindowVisible(container.View()));
    EXPECT_EQ(container.Site().Frame().Active(), nullptr);
    container.Record().AnswerAsUsual();
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    EXPECT_NE(container.Site().Frame().Active(), nullptr);
}

TEST_F(UnwillingSiteTest, NoToInPlaceActivationIsAFailure) {
    Embed();
    container.Record().Answer("CanInPlaceActivate", S_FALSE);
    container.Record().TakeCalls();
    EXPECT_EQ(container.Activate(), E_FAIL);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{"CanInPlaceActivate"});
}

TEST_F(UnwillingSiteTest, SiteForPicturesOnlyIsNoPlace) {
    Embed();
    container.Site().isForControls = false;
    EXPECT_EQ(container.Activate(), E_NOINTERFACE);
}

TEST_F(UnwillingSiteTest, SiteWithoutControlSiteIsEnough) {
    Embed();
    EXPECT_EQ(container.Activate(), S_OK);
    container.Site().isForControls = false;
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    container.Press('A');
    EXPECT_EQ(container.Site().offeredKeys, std::vector<OfferedKey>{});
}

TEST_F(UnwillingSiteTest, WindowThatIsNoneIsNoPlace) {
    Embed();
    container.Site().offeredWindow = nullptr;
    EXPECT_EQ(container.Activate(), E_UNEXPECTED);
    EXPECT_THAT(container.Record().TakeCalls(), testing::Contains("OnInPlaceDeactivate"));
}

/// A system that makes no window of the control's class, and does not say why.
class CNoControlWindows {
public:
    CNoControlWindows()
        : m_hook(SetWindowsHookExW(WH_CBT, Refuse, nullptr, GetCurrentThreadId())) {}
    ~CNoControlWindows() { UnhookWindowsHookEx(m_hook); }
    CNoControlWindows(const CNoControlWindows&) = delete;
    CNoControlWindows& operator=(const CNoControlWindows&) = delete;

private:
    static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HCBT_CREATEWND) {
            const bool isControl =
                win32tests::ClassOf(reinterpret_cast<HWND>(wParam)) == L"KRX8Maintenance";
            SetLastError(0);
            return isControl;
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    const HHOOK m_hook;
};

TEST_F(UnwillingSiteTest, WindowThatTheSystemDoesNotMakeIsAFailure) {
    Embed();
    {
        const CNoControlWindows system;
        SetLastError(0);
        EXPECT_EQ(container.ActivateForUser(), E_FAIL);
    }
    EXPECT_EQ(container.Window(), nullptr);
    EXPECT_THAT(container.Record().TakeCalls(), testing::Contains("OnInPlaceDeactivate"));
    EXPECT_EQ(container.ActivateForUser(), S_OK);
}

TEST_F(UnwillingSiteTest, SiteThatRefusesEverythingLeavesTheControlOut) {
    Embed();
    container.Record().AnswerAll(E_FAIL);
    for (const LONG verb : {OLEIVERB_PRIMARY, OLEIVERB_SHOW, OLEIVERB_OPEN, OLEIVERB_UIACTIVATE,
                            OLEIVERB_INPLACEACTIVATE}) {
        EXPECT_EQ(container.DoVerb(verb), E_FAIL) << verb;
        EXPECT_EQ(container.Window(), nullptr);
    }
    EXPECT_EQ(container.DoVerb(OLEIVERB_HIDE), S_OK);
    EXPECT_EQ(container.DoVerb(OLEIVERB_DISCARDUNDOSTATE), S_OK);
    EXPECT_EQ(container.Site().Outstanding(), 1u);
    EXPECT_EQ(Object()->Close(OLECLOSE_NOSAVE), S_OK);
}

TEST_F(UnwillingSiteTest, SiteThatRefusesEverythingFromNowOnLosesTheControl) {
    Embed();
    ASSERT_EQ(container.ActivateForUser(), S_OK);
    container.Record().AnswerAll(E_FAIL);
    EXPECT_EQ(container.DoVerb(OLEIVERB_UIACTIVATE), S_OK);
    container.Press(VK_F5);
    EXPECT_EQ(container.As<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    EXPECT_EQ(container.DoVerb(OLEIVERB_UIACTIVATE), E_FAIL);
    EXPECT_EQ(container.DoVerb(OLEIVERB_HIDE), S_OK);
    EXPECT_EQ(container.Window(), nullptr);
    EXPECT_EQ(container.Site().Outstanding(), 1u);
    EXPECT_EQ(Object()->Close(OLECLOSE_NOSAVE), S_OK);
}

/// What a container does inside a call that it gets.
struct Interference {
    Name name;
    void (*act)(CContainer& container);
};

void PrintTo(const Interference& interference, std::ostream* out) { *out << interference.name; }

class InterferenceTest : public UnwillingSiteTest,
                         public testing::WithParamInterface<Interference> {
protected:
    /// Activates a control and hides it again, interfering inside the first call of that name.
    Calls RunInterfering(const std::string& call, bool takesKeyboardFirst) {
        CContainer own(library, window->Get());
        own.Embed();
        own.Record().TakeCalls();
        own.Record().Inside([&](const std::string& made) {
            if (made == call) {
                own.Record().Inside({});
                GetParam().act(own);
            }
        });
        const auto object = own.As<IOleObject>();
        static_cast<void>(own.ActivateForUser());
        if (takesKeyboardFirst) {
            own.As<IOleInPlaceObject>()->UIDeactivate();
        }
        static_cast<void>(object->DoVerb(OLEIVERB_HIDE, nullptr, nullptr, 0, nullptr, nullptr));
        if (!own.Window()) {
            EXPECT_EQ(own.Site().Frame().Active(), nullptr);
            EXPECT_EQ(own.Site().Document().Active(), nullptr);
        }
        own.Release();
        object->SetClientSite(nullptr);
        own.Pump();
        EXPECT_EQ(own.Site().Frame().Active(), nullptr);
        return own.Record().TakeCalls();
    }
    void ExpectBalance(const Calls& calls) {
        EXPECT_EQ(std::ranges::count(calls, "OnInPlaceActivate"),
                  std::ranges::count(calls, "OnInPlaceDeactivate"));
        EXPECT_EQ(std::ranges::count(calls, "OnUIActivate"),
                  std::ranges::count(calls, "OnUIDeactivate"));
        ExpectNothingLeft();
    }
};

TEST_P(InterferenceTest, InsideEachCallLeavesTheSiteInBalance) {
    container.Release();
    for (const char* call :
         {"CanInPlaceActivate", "OnInPlaceActivate", "GetWindow", "GetWindowContext", "ShowObject",
          "OnUIActivate", "frame.SetActiveObject", "frame.SetBorderSpace",
          "document.SetActiveObject", "document.SetBorderSpace", "OnFocus(true)", "OnFocus(false)",
          "frame.SetActiveObject(null)", "document.SetActiveObject(null)", "OnUIDeactivate",
          "OnInPlaceDeactivate", "OnShowWindow(false)"}) {
        SCOPED_TRACE(call);
        ExpectBalance(RunInterfering(call, false));
    }
}

TEST_P(InterferenceTest, InsideEachCallOfUiDeactivationLeavesTheSiteInBalance) {
    container.Release();
    for (const char* call : {"OnFocus(false)", "frame.SetActiveObject(null)",
                             "document.SetActiveObject(null)", "OnUIDeactivate"}) {
        SCOPED_TRACE(call);
        ExpectBalance(RunInterfering(call, true));
    }
}

constexpr Interference kInterferences[] = {
    {"UIDeactivate",
     [](CContainer& container) { container.As<IOleInPlaceObject>()->UIDeactivate(); }},
    {"InPlaceDeactivate",
     [](CContainer& container) { container.As<IOleInPlaceObject>()->InPlaceDeactivate(); }},
    {"Close", [](CContainer& container) { container.As<IOleObject>()->Close(OLECLOSE_NOSAVE); }},
    {"SetClientSite",
     [](CContainer& container) { container.As<IOleObject>()->SetClientSite(nullptr); }},
    {"Activate", [](CContainer& container) { static_cast<void>(container.ActivateForUser()); }},
    {"Hide", [](CContainer& container) { static_cast<void>(container.DoVerb(OLEIVERB_HIDE)); }},
};

INSTANTIATE_TEST_SUITE_P(All, InterferenceTest, testing::ValuesIn(kInterferences));

TEST_F(UnwillingSiteTest, UiActivationInsideUiDeactivationIsRefused) {
    Embed();
    ASSERT_EQ(container.ActivateForUser(), S_OK);
    std::vector<HRESULT> inside;
    container.Record().Inside(
        [&](const std::string&) { inside.push_back(container.ActivateForUser()); });
    EXPECT_EQ(container.As<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    container.Record().Inside({});
    EXPECT_EQ(inside, std::vector<HRESULT>(4, E_UNEXPECTED));
    EXPECT_EQ(container.Site().Frame().Active(), nullptr);
    EXPECT_EQ(container.ActivateForUser(), S_OK);
    EXPECT_NE(container.Site().Frame().Active(), nullptr);
}

TEST_F(UnwillingSiteTest, ControlReleasedInsideEachCallOfItsActivationEnds) {
    container.Release();
    for (const char* call : {"CanInPlaceActivate", "OnInPlaceActivate", "GetWindow",
                             "GetWindowContext", "ShowObject", "OnUIActivate", "OnFocus(true)"}) {
        SCOPED_TRACE(call);
        CContainer own(library, window->Get());
        own.Embed();
        own.Record().Inside([&](const std::string& made) {
            if (made == call) {
                own.Release();
            }
        });
        IOleObject* const object = own.As<IOleObject>().Get();
        static_cast<void>(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr));
        own.Release();
        own.Pump();
        EXPECT_EQ(own.Site().Outstanding(), 0u);
        ExpectNothingLeft();
    }
}

}

}
