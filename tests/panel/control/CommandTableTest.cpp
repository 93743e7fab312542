#include "panel/control/CommandTable.h"

#include "panel/control/Trace.h"
#include "tests/support/PanelFixture.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class CommandTableTest : public PanelFixture {
protected:
    void SetUp() override {
        StartPanel();
        DeviceDescription device = HealthyDevice(kKrx20);
        device.selfTests[contract::SelfTest::Ethernet] = 5;
        ConnectDevice(device);
        ForgetWhatWasSeen();
    }
};

TEST_F(CommandTableTest, HelpButtonShowsHelp) {
    EXPECT_TRUE(PressButton(9));
    EXPECT_EQ(desktop->helps.size(), 1u);
}

TEST_F(CommandTableTest, HelpKeyShowsHelp) {
    View().RequestHelp();
    EXPECT_EQ(desktop->helps.size(), 1u);
}

TEST_F(CommandTableTest, DetailsButtonShowsTheSelfTests) {
    desktop->prompts.AnswerDialog();
    EXPECT_TRUE(PressButton(222));
    ASSERT_EQ(desktop->prompts.Dialogs().size(), 1u);
    EXPECT_EQ(desktop->prompts.Dialogs()[0].templateId, 201);
}

TEST_F(CommandTableTest, CloseButtonAsksTheHostOnce) {
    EXPECT_TRUE(PressButton(230));
    EXPECT_EQ(viewControl->closeRequests, 1);
    EXPECT_THAT(TakeCalls(),
                ElementsAre("Context.QueryHostViewControl", "HostViewControl.ClosePanel"));
}

TEST_F(CommandTableTest, ResizeLaysOut) {
    View().ResizeClient({1000, 700});
    EXPECT_EQ(View().GetRectangle(9), (Rectangle{914, 666, 75, 23}));
}

TEST_F(CommandTableTest, KeyInTheFileListReachesItsHandler) {
    EXPECT_TRUE(View().PressKeyInList(224, 0x2E));
    if (kTraceLines) {
        EXPECT_THAT(desktop->traceLines,
                    Contains("CKRX8Maintenance::OnFileListKeyDown: key 0x2E pressed"));
    } else {
        EXPECT_THAT(desktop->traceLines, IsEmpty());
    }
}

TEST_F(CommandTableTest, KeyInAnotherControlIsNoCommand) {
    desktop->traceLines.clear();
    panel->OnListKeyDown(259, 0x2E);
    EXPECT_THAT(desktop->traceLines, IsEmpty());
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(CommandTableTest, CommandOfAControlThatIsNoButtonIsIgnored) {
    for (const ControlId id : {0, 201, 211, 224, 253, 254, 259, 999}) {
        panel->OnCommand(id);
    }
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(CommandTableTest, ButtonSendsNoListCommand) {
    panel->OnListKeyDown(230, 0x2E);
    panel->OnListRightClick(230, {0, 0});
    EXPECT_EQ(viewControl->closeRequests, 0);
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

// Closing

TEST_F(CommandTableTest, CloseIgnoresWhatTheHostAnswers) {
    faults->Fail({1, "HostViewControl.ClosePanel"});
    EXPECT_TRUE(PressButton(230));
    EXPECT_EQ(faults->Fired(), 1u);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_TRUE(PressButton(230));
    EXPECT_EQ(viewControl->closeRequests, 1);
}

TEST_F(CommandTableTest, CloseWithoutViewControlDoesNothing) {
    faults->Clear();
    faults->Fail({1, "Context.QueryHostViewControl"});
    faults->DeliverNull({2, "Context.QueryHostViewControl"});
    EXPECT_TRUE(PressButton(230));
    EXPECT_TRUE(PressButton(230));
    EXPECT_EQ(faults->Fired(), 2u);
    EXPECT_EQ(viewControl->closeRequests, 0);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(CommandTableTest, CloseReleasesTheViewControl) {
    const auto references = viewControl.use_count();
    PressButton(230);
    EXPECT_EQ(viewControl.use_count(), references);
}

TEST_F(CommandTableTest, CloseLeavesThePanelAlive) {
    PressButton(230);
    EXPECT_TRUE(IsEnabled(226));
    EXPECT_EQ(RowCount(), 3);
}

}
