// The Details command of CSelfTestStatus.

#include "panel/selftest/SelfTestStatus.h"

#include "tests/support/PanelFixture.h"

#include <functional>
#include <map>
#include <utility>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

DeviceDescription DeviceWithFailedTest() {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.selfTests[contract::SelfTest::Usb] = 1;
    return device;
}

Shown CannotGetResults(contract::Status status, const std::string& description = "") {
    return ErrorReport("Cannot get self-test results", "Prommer Maintenance", status, description);
}

class SelfTestDetailsTest : public PanelFixture {
protected:
    void SetUp() override {
        StartPanel();
        ConnectDevice(DeviceWithFailedTest());
        ForgetWhatWasSeen();
    }

    /// Runs inside the next reading of the results; the refresh has read them once already.
    void InsideReading(std::function<void()> action) {
        faults->RunBefore({2, "ProgrammingDeviceControl.GetSelfTestResults"}, std::move(action));
    }
    std::map<ControlId, bool> EnableState() {
        std::map<ControlId, bool> state;
        for (const ControlId id : View().StackingOrder()) {
            state[id] = IsEnabled(id);
        }
        return state;
    }
    void FailReading() {
        faults->Fail({2, "ProgrammingDeviceControl.GetSelfTestResults"},
                     {contract::kUnspecifiedFailure, "still testing"});
    }
};

TEST_F(SelfTestDetailsTest, PressingDetailsShowsTheDialogOverThePanel) {
    desktop->prompts.AnswerDialog();
    ASSERT_TRUE(PressButton(kDetailsButton));
    EXPECT_THAT(desktop->prompts.Dialogs(),
                ElementsAre(headless::ShownDialog{201, Owner::Panel, DialogOutcome::Closed(2)}));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(SelfTestDetailsTest, DetailsReadsTheResultsAnew) {
    desktop->prompts.AnswerDialog();
    PressButton(kDetailsButton);
    const auto calls = TakeCalls();
    ASSERT_EQ(calls.size(), 22u);
    EXPECT_EQ(calls.front(), "ProgrammingDeviceControl.GetSelfTestResults");
    EXPECT_THAT(std::vector(calls.begin() + 1, calls.end()),
                testing::Each("SelfTestResults.GetResult"));
}

TEST_F(SelfTestDetailsTest, RefreshIsHeldBackWhileResultsAreReadOnly) {
    std::vector<bool> isAllowed;
    InsideReading([&] { isAllowed.push_back(State().refreshAllowed); });
    desktop->prompts.AnswerDialog(
        [&](headless::CHeadlessView&) { isAllowed.push_back(State().refreshAllowed); });
    PressButton(kDetailsButton);
    EXPECT_THAT(isAllowed, ElementsAre(false, true));
}

TEST_F(SelfTestDetailsTest, WaitCursorShowsWhileResultsAreReadOnly) {
    std::vector<int> depths;
    InsideReading([&] { depths.push_back(desktop->cursorDepth); });
    desktop->prompts.AnswerDialog(
        [&](headless::CHeadlessView&) { depths.push_back(desktop->cursorDepth); });
    PressButton(kDetailsButton);
    EXPECT_THAT(depths, ElementsAre(1, 0));
}

TEST_F(SelfTestDetailsTest, ReadyStateWhileResultsAreReadStartsNoRefresh) {
    InsideReading([this] { RaiseState(7); });
    desktop->prompts.AnswerDialog();
    PressButton(kDetailsButton);
    EXPECT_EQ(faults->Calls("HardwareInfo.GetDeviceType"), 2u);
    EXPECT_EQ(faults->Calls("ProgrammingDeviceControl.GetFileListing"), 1u);
    EXPECT_EQ(desktop->highestCursorDepth, 2);
}

TEST_F(SelfTestDetailsTest, ReadyStateWhileTheDialogIsOpenRefreshes) {
    desktop->prompts.AnswerDialog([this](headless::CHeadlessView&) { RaiseState(7); });
    PressButton(kDetailsButton);
    EXPECT_EQ(faults->Calls("ProgrammingDeviceControl.GetFileListing"), 2u);
    EXPECT_EQ(RowCount(), 3);
}

TEST_F(SelfTestDetailsTest, FailingResultsAreReportedWithoutDialog) {
    FailReading();
    PressButton(kDetailsButton);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(CannotGetResults(contract::kUnspecifiedFailure, "still testing")));
    EXPECT_THAT(desktop->prompts.Dialogs(), IsEmpty());
    EXPECT_TRUE(State().refreshAllowed);
}

TEST_F(SelfTestDetailsTest, FailingResultsLeaveTheEnableState) {
    const auto before = EnableState();
    EXPECT_TRUE(before.at(222));
    FailReading();
    PressButton(kDetailsButton);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(EnableState(), before);
}

TEST_F(SelfTestDetailsTest, NullResultsAreReportedWithoutDialog) {
    faults->DeliverNull({2, "ProgrammingDeviceControl.GetSelfTestResults"});
    PressButton(kDetailsButton);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(CannotGetResults(contract::Status::FromBits(0x80004003))));
    EXPECT_THAT(desktop->prompts.Dialogs(), IsEmpty());
}

TEST_F(SelfTestDetailsTest, CursorIsRestoredWhileAFailureIsShown) {
    int depth = -1;
    messageService->whileOpen = [&] { depth = desktop->cursorDepth; };
    FailReading();
    PressButton(kDetailsButton);
    EXPECT_EQ(depth, 0);
}

TEST_F(SelfTestDetailsTest, ResultsAreHeldForTheDialogAndThenReleased) {
    const auto wrappers = interception.LiveWrappers();
    std::size_t whileOpen = 0;
    desktop->prompts.AnswerDialog(
        [&](headless::CHeadlessView&) { whileOpen = interception.LiveWrappers(); });
    PressButton(kDetailsButton);
    EXPECT_EQ(whileOpen, wrappers + 1);
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

TEST_F(SelfTestDetailsTest, DialogThatCannotBeMadeLeavesNothingBehind) {
    const auto wrappers = interception.LiveWrappers();
    desktop->prompts.FailDialog(1407);
    PressButton(kDetailsButton);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
    EXPECT_TRUE(State().refreshAllowed);
}

TEST_F(SelfTestDetailsTest, PanelMayEndWhileTheDialogIsOpen) {
    desktop->prompts.AnswerDialog([this](headless::CHeadlessView&) {
        panel->DestroyView();
        panel.reset();
    });
    PressButton(kDetailsButton);
    EXPECT_EQ(interception.LiveWrappers(), 0u);
}

}
