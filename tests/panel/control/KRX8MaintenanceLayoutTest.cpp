// The panel's layout as its view shows it; the arithmetic is in PanelLayoutTest.cpp.

#include "panel/control/KRX8Maintenance.h"

#include "tests/support/PanelFixture.h"

#include <map>

namespace {

using namespace panel;
using namespace support;

class KRX8MaintenanceLayoutTest : public PanelFixture {
protected:
    void SetUp() override { StartView(); }

    std::map<ControlId, Rectangle> Placement() {
        std::map<ControlId, Rectangle> placement;
        for (const ControlId id : View().StackingOrder()) {
            placement[id] = View().GetRectangle(id);
        }
        return placement;
    }
};

TEST_F(KRX8MaintenanceLayoutTest, ResizePlacesTheControlsOfTheView) {
    panel->Resize({1000, 700});
    EXPECT_EQ(View().GetClientSize(), (Size{1000, 700}));
    EXPECT_EQ(View().GetRectangle(234), (Rectangle{12, 325, 977, 330}));
    EXPECT_EQ(View().GetRectangle(223), (Rectangle{250, 11, 739, 309}));
    EXPECT_EQ(View().GetRectangle(224), (Rectangle{266, 29, 712, 280}));
    EXPECT_EQ(View().GetRectangle(259), (Rectangle{26, 349, 952, 295}));
    int left = 914;
    for (const ControlId id : {9, 230, 246, 222, 229, 228, 227, 226}) {
        EXPECT_EQ(View().GetRectangle(id), (Rectangle{left, 666, 75, 23})) << id;
        left -= 80;
    }
}

TEST_F(KRX8MaintenanceLayoutTest, ResizeLeavesTheOtherControlsInPlace) {
    const auto before = Placement();
    panel->Resize({1000, 700});
    for (const ControlId id : {201, 202, 211, 216, 221, 244, 245, 253, 254}) {
        EXPECT_EQ(View().GetRectangle(id), before.at(id)) << id;
        EXPECT_EQ(View().FrameComputations(id), 0) << id;
    }
}

TEST_F(KRX8MaintenanceLayoutTest, MovedControlsKeepTheirOrderAndRecomputeTheirFrame) {
    const auto order = View().StackingOrder();
    panel->Resize({1000, 700});
    for (const ControlId id : {234, 223, 224, 259, 9, 230, 246, 222, 229, 228, 227, 226}) {
        EXPECT_EQ(View().FrameComputations(id), 1) << id;
    }
    EXPECT_EQ(View().StackingOrder(), order);
}

TEST_F(KRX8MaintenanceLayoutTest, ResizesBelowTheLimitsKeepThePlacement) {
    const auto natural = Placement();
    panel->Resize({686, 1000});
    panel->Resize({1000, 439});
    EXPECT_EQ(Placement(), natural);
    panel->Resize({687, 440});
    EXPECT_NE(Placement(), natural);
}

TEST_F(KRX8MaintenanceLayoutTest, ShrinkingBelowTheLimitsKeepsTheLastLayout) {
    panel->Resize({1000, 700});
    const auto large = Placement();
    panel->Resize({300, 200});
    EXPECT_EQ(Placement(), large);
}

TEST_F(KRX8MaintenanceLayoutTest, RepeatedResizesEndWhereOneWouldHave) {
    panel->Resize({1000, 700});
    const auto once = Placement();
    panel->Resize({1600, 1200});
    panel->Resize({1000, 700});
    EXPECT_EQ(Placement(), once);
}

TEST_F(KRX8MaintenanceLayoutTest, OnlyTheLogFollowsTheClientRectangle) {
    panel->OnResized({1000, 700});
    EXPECT_EQ(View().GetRectangle(259), (Rectangle{26, 349, 740, 73}));
    EXPECT_EQ(View().GetRectangle(234), (Rectangle{12, 325, 977, 330}));
}

TEST_F(KRX8MaintenanceLayoutTest, ResizeByTheUserLaysOut) {
    View().ResizeClient({700, 440});
    EXPECT_EQ(View().GetRectangle(226), (Rectangle{150, 406, 63, 23}));
}

TEST_F(KRX8MaintenanceLayoutTest, LengthsAreCutToSixteenBits) {
    panel->Resize({65536, 70000});
    EXPECT_EQ(View().GetClientSize(), (Size{65535, 65535}));
    panel->Resize({-1, -5});
    EXPECT_EQ(View().GetClientSize(), (Size{0, 0}));
}

TEST_F(KRX8MaintenanceLayoutTest, LengthsToldByTheViewAreCutToSixteenBits) {
    panel->OnResized({66236, 70000});
    EXPECT_EQ(View().GetRectangle(9), (Rectangle{65535 - 11 - 75, 65535 - 34, 75, 23}));
    const auto placement = Placement();
    panel->OnResized({-1, -1});
    EXPECT_EQ(Placement(), placement);
}

}
