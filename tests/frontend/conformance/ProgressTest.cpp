#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

class ProgressTest : public ConformanceTest {};

TEST_F(ProgressTest, PositionIsShownWithinItsRange) {
    Show();
    View().SetProgressRange(kBar, 50);
    View().SetProgressPosition(kBar, 20);
    EXPECT_EQ(User().Progress(kBar), (ShownProgress{50, 20}));
}

TEST_F(ProgressTest, PositionZeroEmptiesTheBar) {
    Show();
    View().SetProgressRange(kBar, 50);
    View().SetProgressPosition(kBar, 20);
    View().SetProgressPosition(kBar, 0);
    EXPECT_EQ(User().Progress(kBar), (ShownProgress{50, 0}));
}

TEST_F(ProgressTest, RangeZeroDoesNotHinderALaterOne) {
    Show();
    View().SetProgressRange(kBar, 0);
    View().SetProgressPosition(kBar, 5);
    View().SetProgressRange(kBar, 10);
    View().SetProgressPosition(kBar, 4);
    EXPECT_EQ(User().Progress(kBar), (ShownProgress{10, 4}));
}

TEST_F(ProgressTest, ExtremeValuesDoNotHinderLaterOnes) {
    Show();
    View().SetProgressRange(kBar, -2147483647 - 1);
    View().SetProgressPosition(kBar, 2147483647);
    View().SetProgressRange(kBar, 2147483647);
    View().SetProgressPosition(kBar, -1);
    View().SetProgressRange(kBar, 100);
    View().SetProgressPosition(kBar, 100);
    EXPECT_EQ(User().Progress(kBar), (ShownProgress{100, 100}));
}

TEST_F(ProgressTest, WhatIsNoProgressBarShowsNone) {
    Show();
    for (panel::ControlId id : {kMissing, panel::kNoControl, kField}) {
        View().SetProgressRange(id, 10);
        View().SetProgressPosition(id, 5);
    }
    EXPECT_EQ(View().GetText(kField), "initial");
    EXPECT_EQ(m_handler.events, Events{});
}

}

}
