#include "panel/control/PanelView.h"

#include "frontend/headless/HeadlessToolkit.h"
#include "panel/control/DialogHandler.h"
#include "panel/control/PanelTemplate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace panel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CIdleHandler final : public IDialogHandler {
public:
    void OnInit(IView&) override {}
    void OnCommand(ControlId) override {}
};

class PanelViewTest : public testing::Test {
protected:
    headless::CHeadlessView& RealView() { return static_cast<headless::CHeadlessView&>(*realView); }

    headless::CHeadlessToolkit toolkit;
    CIdleHandler handler;
    std::unique_ptr<IView> realView = toolkit.CreateView(kPanelTemplate, nullptr, handler);
    CPanelView view;
};

TEST_F(PanelViewTest, ViewExistsFromAttachToDetach) {
    EXPECT_FALSE(view.Exists());
    view.Attach(*realView);
    EXPECT_TRUE(view.Exists());
    view->SetText(212, "HW 2.1");
    EXPECT_EQ(RealView().GetText(212), "HW 2.1");
    view.Detach();
    EXPECT_FALSE(view.Exists());
}

TEST_F(PanelViewTest, ControlCanBeNamedOnceCaptured) {
    view.Attach(*realView);
    const ControlId ids[] = {226, 9};
    view.Capture(ids);
    EXPECT_EQ(view[226], 226);
    EXPECT_EQ(view[9], 9);
    EXPECT_EQ(view[227], 0);
    EXPECT_THAT(RealView().Captures(), ElementsAre(226, 9));
}

TEST_F(PanelViewTest, ControlThatTheViewLacksCannotBeNamed) {
    view.Attach(*realView);
    const ControlId ids[] = {999, 226};
    view.Capture(ids);
    EXPECT_EQ(view[999], 0);
    EXPECT_EQ(view[226], 226);
}

TEST_F(PanelViewTest, CaptureWithoutViewNamesNothing) {
    const ControlId ids[] = {226};
    view.Capture(ids);
    EXPECT_EQ(view[226], 0);
}

TEST_F(PanelViewTest, DetachForgetsTheCapturedControls) {
    view.Attach(*realView);
    const ControlId ids[] = {226};
    view.Capture(ids);
    view.Detach();
    EXPECT_EQ(view[226], 0);
}

TEST_F(PanelViewTest, QuestionsWithoutViewAnswerEmpty) {
    EXPECT_EQ(view->Capture(226), 0);
    EXPECT_EQ(view->GetText(254), "");
    EXPECT_FALSE(view->IsEnabled(9));
    EXPECT_FALSE(view->IsVisible(9));
    EXPECT_EQ(view->GetFocus(), 0);
    EXPECT_EQ(view->GetClientSize(), (Size{0, 0}));
    EXPECT_EQ(view->GetRectangle(9), (Rectangle{0, 0, 0, 0}));
}

TEST_F(PanelViewTest, ListWithoutViewIsEmpty) {
    EXPECT_EQ(view->InsertRow(224, 0, "alpha.fia"), -1);
    EXPECT_EQ(view->GetRowCount(224), 0);
    EXPECT_EQ(view->GetCell(224, 0, 0), "");
    EXPECT_EQ(view->GetRowKey(224, 0), 0u);
    EXPECT_THAT(view->GetSelectedRows(224), IsEmpty());
    EXPECT_EQ(view->GetSelectionMark(224), -1);
    EXPECT_EQ(view->GetFocusedRow(224), -1);
}

}
}
