// The keyboard comes to a control that is in its place, by no click.

#include "tests/component/win32/control/ControlFixture.h"

#include "panel/control/PanelTemplate.h"

#include <algorithm>

namespace controltests {

namespace {

class FocusArrivalTest : public ControlFixture {
protected:
    void SetUp() override {
        StartConnected();
        SetFocus(window->Get());
        container.Record().TakeCalls();
        ASSERT_EQ(container.Site().Frame().Active(), nullptr);
    }

    HRESULT SendMnemonic() {
        MSG key{window->Get(), WM_SYSKEYDOWN, 'C', 0, 0, {}};
        return container.As<IOleControl>()->OnMnemonic(&key);
    }
    void ExpectActiveForUser() {
        EXPECT_EQ(container.Site().Frame().Active(), container.As<IOleInPlaceActiveObject>().Get());
        const Calls calls = container.Record().TakeCalls();
        EXPECT_EQ(std::ranges::count(calls, "OnUIActivate"), 1);
        EXPECT_EQ(std::ranges::count(calls, "OnFocus(true)"), 1);
    }
};

class ArrivalAtControlTest : public FocusArrivalTest, public testing::WithParamInterface<int> {};

TEST_P(ArrivalAtControlTest, MakesItActiveForTheUserAndStaysThere) {
    SetFocus(container.Button(GetParam()));
    ExpectActiveForUser();
    EXPECT_EQ(GetFocus(), container.Button(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, ArrivalAtControlTest,
                         testing::Values(panel::kCloseButton, panel::kFileList, panel::kStatusLog,
                                         panel::kHardwareField));

TEST_F(FocusArrivalTest, FocusGivenToTheViewMakesItActiveForTheUser) {
    SetFocus(container.View());
    ExpectActiveForUser();
}

TEST_F(FocusArrivalTest, FocusThatMovesInsideLeavesAUiInactiveControlSo) {
    SetFocus(container.Button(panel::kFileList));
    container.As<IOleInPlaceObject>()->UIDeactivate();
    container.Record().TakeCalls();
    SetFocus(container.Button(panel::kStatusLog));
    EXPECT_EQ(container.Record().TakeCalls(), Calls{});
}

TEST_F(FocusArrivalTest, MnemonicMakesItActiveForTheUserBeforeItPresses) {
    container.Record().Inside(
        [&](const std::string& call) { EXPECT_EQ(host->viewControl->closeRequests, 0) << call; });
    EXPECT_EQ(SendMnemonic(), S_OK);
    container.Record().Inside(nullptr);
    ExpectActiveForUser();
    EXPECT_EQ(host->viewControl->closeRequests, 1);
}

TEST_F(FocusArrivalTest, MnemonicOfNoButtonActivatesNothing) {
    MSG key{window->Get(), WM_SYSKEYDOWN, 'X', 0, 0, {}};
    EXPECT_EQ(container.As<IOleControl>()->OnMnemonic(&key), S_OK);
    EXPECT_EQ(container.Record().TakeCalls(), Calls{});
}

TEST_F(FocusArrivalTest, MnemonicPressesWhereTheSiteRefusesUiActivation) {
    container.Record().Answer("OnUIActivate", E_ACCESSDENIED);
    EXPECT_EQ(SendMnemonic(), S_OK);
    EXPECT_EQ(host->viewControl->closeRequests, 1);
}

/// What the container does as it hears of the activation.
struct Reaction {
    const char* name;
    void (*act)(CContainer& container);
    /// How often a mnemonic presses its button thereafter. A call outlives the release inside it.
    int presses;
};

void PrintTo(const Reaction& reaction, std::ostream* out) { *out << reaction.name; }

class ReactionToArrivalTest : public FocusArrivalTest,
                              public testing::WithParamInterface<Reaction> {
protected:
    void SetUp() override {
        FocusArrivalTest::SetUp();
        container.Record().Inside([this](const std::string& call) {
            if (call == "OnUIActivate") {
                GetParam().act(container);
            }
        });
    }
};

TEST_P(ReactionToArrivalTest, InsideTheFocusLeavesNothing) {
    SetFocus(container.Button(panel::kCloseButton));
    EXPECT_THAT(container.Record().TakeCalls(), testing::Contains("OnUIActivate"));
}

TEST_P(ReactionToArrivalTest, InsideAMnemonicLeavesNothing) {
    EXPECT_EQ(SendMnemonic(), S_OK);
    EXPECT_THAT(container.Record().TakeCalls(), testing::Contains("OnUIActivate"));
    EXPECT_EQ(host->viewControl->closeRequests, GetParam().presses);
}

constexpr Reaction kReactions[] = {
    {"Close", [](CContainer& container) { container.As<IOleObject>()->Close(OLECLOSE_NOSAVE); }, 0},
    {"Release", [](CContainer& container) { container.Release(); }, 1},
    {"InPlaceDeactivate",
     [](CContainer& container) { container.As<IOleInPlaceObject>()->InPlaceDeactivate(); }, 0},
};

INSTANTIATE_TEST_SUITE_P(All, ReactionToArrivalTest, testing::ValuesIn(kReactions));

}

}
