#include "tests/frontend/conformance/ConformanceTest.h"

#include "panel/control/PanelTemplate.h"

#include <algorithm>

namespace conformance {

namespace {

using panel::Rectangle;
using panel::Size;

class GeometryTest : public ConformanceTest {
protected:
    void ExpectAbove(panel::ControlId upper, panel::ControlId lower) {
        const std::vector<panel::ControlId> order = User().StackingOrder();
        EXPECT_LT(std::ranges::find(order, lower), std::ranges::find(order, upper))
            << upper << " above " << lower;
    }
};

TEST_F(GeometryTest, FontHasMeasures) {
    const panel::FontMetrics font = Toolkit().MeasureFont();
    EXPECT_GT(font.alphabetWidth, 52);
    EXPECT_GT(font.height, 1);
}

TEST_F(GeometryTest, PanelHasItsTemplateSizeInPixels) {
    Show(panel::kPanelTemplate);
    EXPECT_EQ(View().GetClientSize(), panel::ToPixels(Size{450, 294}, Toolkit().MeasureFont()));
}

TEST_F(GeometryTest, ControlsHaveTheirTemplateRectanglesInPixels) {
    Show(panel::kPanelTemplate);
    const panel::FontMetrics font = Toolkit().MeasureFont();
    for (const panel::ControlTemplate& control : panel::kPanelTemplate.controls)
        EXPECT_EQ(View().GetRectangle(control.id), panel::ToPixels(control.rectangle, font))
            << control.id;
}

TEST_F(GeometryTest, MovePlacesEachKindOfControl) {
    Show();
    for (const panel::ControlTemplate& control : kSmallTemplate.controls) {
        const Rectangle target{17, 23, 150, 61};
        View().Move(control.id, target);
        EXPECT_EQ(View().GetRectangle(control.id), target) << control.id;
    }
}

TEST_F(GeometryTest, MoveKeepsTheStackingOrder) {
    Show();
    const std::vector<panel::ControlId> order = User().StackingOrder();
    EXPECT_EQ(order.size(), kSmallTemplate.controls.size());
    View().Move(kFrame, {0, 0, 400, 300});
    View().Move(kManyList, {5, 5, 200, 100});
    View().Move(kFirstButton, {5, 5, 75, 23});
    EXPECT_EQ(User().StackingOrder(), order);
}

TEST_F(GeometryTest, GroupBoxesAreBelowWhatTheyFrame) {
    Show(panel::kPanelTemplate);
    ExpectAbove(panel::kSerialNumberField, panel::kInfoGroup);
    ExpectAbove(panel::kIpAddressLabel, panel::kInfoGroup);
    ExpectAbove(panel::kFileList, panel::kFileGroup);
    ExpectAbove(panel::kStatusLog, panel::kProgressGroup);
}

TEST_F(GeometryTest, GroupBoxLetsClicksThrough) {
    Show();
    View().Move(kFrame, View().GetRectangle(kFirstButton));
    EXPECT_TRUE(User().Press(kFirstButton));
    EXPECT_EQ(m_handler.events, Events{"command 309"});
}

TEST_F(GeometryTest, SetSizeReportsANewSizeOnce) {
    Show();
    View().SetSize({901, 502});
    EXPECT_EQ(View().GetClientSize(), (Size{901, 502}));
    EXPECT_EQ(m_handler.events, Events{"resized 901x502"});
}

TEST_F(GeometryTest, SetSizeToTheSameReportsNothing) {
    Show();
    View().SetSize(View().GetClientSize());
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(GeometryTest, SetSizeMovesNoControl) {
    Show();
    const Rectangle before = View().GetRectangle(kSecondButton);
    View().SetSize({1000, 700});
    EXPECT_EQ(View().GetRectangle(kSecondButton), before);
}

TEST_F(GeometryTest, MissingControlHasNoRectangleAndCannotBeMoved) {
    Show();
    const std::vector<panel::ControlId> order = User().StackingOrder();
    View().Move(kMissing, {1, 2, 3, 4});
    EXPECT_EQ(View().GetRectangle(kMissing), Rectangle{});
    EXPECT_EQ(User().StackingOrder(), order);
}

}

}
