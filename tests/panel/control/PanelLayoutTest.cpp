#include "panel/control/PanelLayout.h"

#include "panel/control/PanelTemplate.h"

#include <gtest/gtest.h>

#include <map>

namespace panel {
namespace {

/// The natural placement at an average width of 7 and a height of 13 pixels.
Rectangle NaturalRectangle(ControlId id) {
    const std::map<ControlId, Rectangle> rectangles = {
        {kProgressGroup, {12, 325, 763, 109}},
        {kFileGroup, {250, 11, 525, 309}},
        {kFileList, {266, 29, 497, 280}},
        {kStatusLog, {26, 349, 737, 78}},
    };
    return rectangles.at(id);
}

std::map<ControlId, Rectangle> LayOut(Size size, Size client) {
    std::map<ControlId, Rectangle> placed;
    for (const Placement& placement : LayOutControls(size, client, NaturalRectangle)) {
        placed[placement.id] = placement.rectangle;
    }
    return placed;
}

TEST(PanelLayoutTest, SizesBelowTheLimitsPlaceNothing) {
    EXPECT_TRUE(LayOut({686, 1000}, {686, 1000}).empty());
    EXPECT_TRUE(LayOut({1000, 439}, {1000, 439}).empty());
    EXPECT_TRUE(LayOut({0, 0}, {0, 0}).empty());
    EXPECT_FALSE(LayOut({687, 440}, {687, 440}).empty());
}

TEST(PanelLayoutTest, StretchedControlsKeepTheirCornerAndGrowToTheirMargins) {
    const auto placed = LayOut({1000, 700}, {1000, 700});
    EXPECT_EQ(placed.at(kProgressGroup), (Rectangle{12, 325, 1000 - 11 - 12, 700 - 45 - 325}));
    EXPECT_EQ(placed.at(kFileGroup), (Rectangle{250, 11, 1000 - 11 - 250, 309}));
    EXPECT_EQ(placed.at(kFileList), (Rectangle{266, 29, 1000 - 22 - 266, 280}));
    EXPECT_EQ(placed.at(kStatusLog), (Rectangle{26, 349, 1000 - 22 - 26, 700 - 56 - 349}));
}

TEST(PanelLayoutTest, OnlyTheLogFollowsTheClientRectangle) {
    const auto placed = LayOut({1000, 700}, {900, 600});
    EXPECT_EQ(placed.at(kStatusLog), (Rectangle{26, 349, 900 - 22 - 26, 600 - 56 - 349}));
    EXPECT_EQ(placed.at(kProgressGroup), (Rectangle{12, 325, 1000 - 11 - 12, 700 - 45 - 325}));
    EXPECT_EQ(placed.at(kFileGroup).width, 1000 - 11 - 250);
    EXPECT_EQ(placed.at(kFileList).width, 1000 - 22 - 266);
    EXPECT_EQ(placed.at(kHelpButton), (Rectangle{914, 700 - 34, 75, 23}));
}

TEST(PanelLayoutTest, ButtonsAreCappedAtSeventyFive) {
    const auto placed = LayOut({1000, 700}, {1000, 700});
    EXPECT_EQ(placed.at(kHelpButton), (Rectangle{914, 666, 75, 23}));
    EXPECT_EQ(placed.at(kCloseButton), (Rectangle{834, 666, 75, 23}));
    EXPECT_EQ(LayOut({817, 440}, {817, 440}).at(kHelpButton).width, 75);
    EXPECT_EQ(LayOut({816, 440}, {816, 440}).at(kHelpButton).width, 74);
}

TEST(PanelLayoutTest, ButtonsStandFromRightToLeftAtSevenHundred) {
    const auto placed = LayOut({700, 440}, {700, 440});
    const ControlId order[] = {kHelpButton,  kCloseButton,  kNetworkButton, kDetailsButton,
                               kResetButton, kReportButton, kDeleteButton,  kUpdateButton};
    int left = 700 - 11 - 63;
    for (const ControlId id : order) {
        EXPECT_EQ(placed.at(id), (Rectangle{left, 406, 63, 23})) << id;
        left -= 68;
    }
    EXPECT_EQ(placed.at(kUpdateButton).x, 150);
}

TEST(PanelLayoutTest, EverythingMovedIsNamedOnce) {
    EXPECT_EQ(LayOutControls({800, 600}, {800, 600}, NaturalRectangle).size(), 12u);
    EXPECT_EQ(LayOut({800, 600}, {800, 600}).size(), 12u);
}

}
}
