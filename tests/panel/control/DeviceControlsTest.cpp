#include "panel/control/DeviceControls.h"

#include "frontend/headless/HeadlessToolkit.h"
#include "panel/control/DialogHandler.h"
#include "panel/control/PanelTemplate.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>

namespace panel {
namespace {

struct Case {
    int type;
    const char* title;
    bool enablesNetwork;
};

class RulesForTest : public testing::TestWithParam<Case> {};

TEST_P(RulesForTest, EnablingGivesTheDeviceControlsOfTheType) {
    const DeviceControlRules rules = RulesFor(static_cast<DeviceType>(GetParam().type), true);
    EXPECT_EQ(rules.infoTitle, GetParam().title);
    EXPECT_EQ(rules.enableNetwork, GetParam().enablesNetwork);
}

TEST_P(RulesForTest, DisablingTakesEverythingAndKeepsTheTitle) {
    const DeviceControlRules rules = RulesFor(static_cast<DeviceType>(GetParam().type), false);
    EXPECT_EQ(rules.infoTitle, GetParam().title);
    EXPECT_FALSE(rules.enableNetwork);
}

INSTANTIATE_TEST_SUITE_P(Types, RulesForTest,
                         testing::Values(Case{1, "KRX-8 Info", false}, Case{2, "KRX-8 Info", false},
                                         Case{3, "KRX-10 Info", true}, Case{4, "KRX-20 Info", true},
                                         Case{5, "KRX-21 Info", true}, Case{0, "KRX-unknown", true},
                                         Case{6, "KRX-unknown", true}, Case{7, "KRX-unknown", true},
                                         Case{-1, "KRX-unknown", true}));

class CIdleHandler final : public IDialogHandler {
public:
    void OnInit(IView&) override {}
    void OnCommand(ControlId) override {}
};

class DeviceControlsTest : public testing::Test {
protected:
    void SetUp() override {
        const ControlId captured[] = {201, 222, 224, 226, 227, 228, 229, 230, 9, 244, 245, 246};
        view.Attach(*realView);
        view.Capture(captured);
    }
    void ExpectEnabled(std::initializer_list<ControlId> ids, bool expected) {
        for (const ControlId id : ids) {
            EXPECT_EQ(realView->IsEnabled(id), expected) << id;
        }
    }

    headless::CHeadlessToolkit toolkit;
    CIdleHandler handler;
    std::unique_ptr<IView> realView = toolkit.CreateView(kPanelTemplate, nullptr, handler);
    CPanelView view;
    PanelState state;
    CDeviceControls controls{view, state};
};

TEST_F(DeviceControlsTest, EnablingBeforeAnyTypeIsReadTreatsAKrx10) {
    controls.EnableDeviceControls(true);
    EXPECT_EQ(realView->GetText(201), "KRX-10 Info");
    ExpectEnabled({224, 226, 227, 228, 229, 244, 245, 246}, true);
}

TEST_F(DeviceControlsTest, EnablingAKrx8WithholdsTheNetwork) {
    state.deviceType = DeviceType{1};
    controls.EnableDeviceControls(true);
    EXPECT_EQ(realView->GetText(201), "KRX-8 Info");
    ExpectEnabled({224, 226, 227, 228, 229}, true);
    ExpectEnabled({244, 245, 246}, false);
}

TEST_F(DeviceControlsTest, EnablingNeverGivesDetails) {
    controls.EnableDeviceControls(true);
    ExpectEnabled({222}, false);
    realView->SetEnabled(222, true);
    controls.EnableDeviceControls(false);
    ExpectEnabled({222}, false);
    controls.EnableDeviceControls(true);
    ExpectEnabled({222}, false);
}

TEST_F(DeviceControlsTest, EnablingLeavesDetailsThatAreThere) {
    realView->SetEnabled(222, true);
    controls.EnableDeviceControls(true);
    ExpectEnabled({222}, true);
}

TEST_F(DeviceControlsTest, DisablingTakesAllButHelpAndClose) {
    controls.EnableDeviceControls(true);
    realView->SetEnabled(222, true);
    controls.EnableDeviceControls(false);
    ExpectEnabled({222, 224, 226, 227, 228, 229, 244, 245, 246}, false);
    ExpectEnabled({9, 230, 201, 223, 234, 259}, true);
}

TEST_F(DeviceControlsTest, ViewThatIsNotCapturedStays) {
    view.Detach();
    view.Attach(*realView);
    controls.EnableDeviceControls(true);
    EXPECT_EQ(realView->GetText(201), "KRX-8 Info");
    ExpectEnabled({224, 226, 246}, false);
}

TEST_F(DeviceControlsTest, EnablingWithoutViewDoesNothing) {
    view.Detach();
    controls.EnableDeviceControls(true);
    EXPECT_EQ(realView->GetText(201), "KRX-8 Info");
    ExpectEnabled({224, 226, 246}, false);
}

}
}
