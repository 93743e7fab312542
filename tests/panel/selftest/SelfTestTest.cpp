#include "panel/selftest/SelfTest.h"

#include "panel/selftest/SelfTestTemplate.h"
#include "tests/support/RoomFixture.h"

#include <functional>
#include <utility>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using contract::SelfTest;
using headless::CHeadlessView;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Column(const CHeadlessView& view, int column) {
    std::vector<std::string> cells;
    for (int row = 0; row < view.GetRowCount(236); ++row) {
        cells.push_back(view.GetCell(236, row, column));
    }
    return cells;
}

const auto kIsTheListOfTests =
    ElementsAre("Application SW", "Boot code", "EEPROM", "Ethernet", "External Flash",
                "External RAM", "Flash", "FPGA", "FPGA Code", "FPGA Load", "USB Host Controller",
                "MCUSW", "MMCR driver", "ZTWCDC driver", "Paged Flash", "Paged RAM", "RAM",
                "RS-232", "Secondary and Algorithm files", "USB", "USB Device Function");

// From the Details button

class SelfTestTest : public PanelFixture {
protected:
    void SetUp() override { StartPanel(); }

    /// Connects the device, opens the dialog on it and runs `script` in it.
    void OpenOn(DeviceDescription device, headless::CPromptQueue::DialogScript script = {}) {
        // Details is there only for a device whose tests did not all pass.
        device.selfTests[SelfTest::UsbDeviceFunction] = 1;
        ConnectDevice(device);
        ForgetWhatWasSeen();
        faults->Clear();
        for (std::size_t row = 1; m_insideQuery && row <= 21; ++row) {
            faults->RunBefore({row, "SelfTestResults.GetResult"}, m_insideQuery);
        }
        for (const auto& [call, fault] : m_plannedFaults) {
            faults->Fail({call, "SelfTestResults.GetResult"}, fault);
        }
        desktop->prompts.AnswerDialog(std::move(script));
        ASSERT_TRUE(PressButton(kDetailsButton));
    }

    /// The query for that row of the dialog fails.
    void FailRow(std::size_t row, interception::Fault fault) {
        m_plannedFaults.emplace_back(row, std::move(fault));
    }

    /// Runs inside the query for every row of the dialog.
    void InsideQueries(std::function<void()> action) { m_insideQuery = std::move(action); }

    int DialogResult() { return desktop->prompts.Dialogs().back().outcome.code; }

private:
    std::vector<std::pair<std::size_t, interception::Fault>> m_plannedFaults;
    std::function<void()> m_insideQuery;
};

TEST_F(SelfTestTest, DialogHasItsTitleAndColumns) {
    OpenOn(HealthyDevice(kKrx20), [](CHeadlessView& view) {
        EXPECT_STREQ(view.Template().title, "Startup Self-test statuses");
        const auto columns = view.Columns(236);
        ASSERT_EQ(columns.size(), 2u);
        EXPECT_EQ(columns[0].heading, "Self-test");
        EXPECT_EQ(columns[0].widthPixels, 150);
        EXPECT_EQ(columns[0].alignment, Alignment::Left);
        EXPECT_EQ(columns[1].heading, "Status");
        EXPECT_EQ(columns[1].widthPixels, 120);
        EXPECT_EQ(columns[1].alignment, Alignment::Left);
    });
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

class EveryTypeTest : public SelfTestTest, public testing::WithParamInterface<std::int32_t> {};

TEST_P(EveryTypeTest, DialogListsAllTestsInOrder) {
    OpenOn(HealthyDevice(GetParam()), [](CHeadlessView& view) {
        EXPECT_THAT(Column(view, 0), kIsTheListOfTests);
        std::vector<std::string> results(20, "OK");
        results.push_back("Failed");
        EXPECT_EQ(Column(view, 1), results);
    });
}

INSTANTIATE_TEST_SUITE_P(Types, EveryTypeTest, testing::Values(1, 2, 3, 4, 5));

TEST_F(SelfTestTest, EachResultStandsBesideItsTest) {
    DeviceDescription device = HealthyDevice(kKrx20);
    const std::pair<int, std::int32_t> results[] = {
        {3, 0},    {4, 1},    {9, 2},   {18, 787}, {7, 788},  {6, 789},  {12, 790},
        {21, 791}, {1, 792},  {2, 793}, {16, 794}, {11, 795}, {14, 809}, {17, 812},
        {8, 813},  {13, 814}, {5, 796}, {20, -1},  {10, 3},   {19, 0}};
    for (const auto& [test, code] : results) {
        device.selfTests[static_cast<SelfTest>(test)] = code;
    }
    OpenOn(device, [](CHeadlessView& view) {
        EXPECT_THAT(Column(view, 1),
                    ElementsAre("OK", "Failed", "Ignored", "Not run", "File missing",
                                "File invalid", "Certificate missing", "Certificate invalid",
                                "Authentication failed", "Flash not found", "Flash not usable",
                                "Driver failed", "Public Key failed", "Media not found",
                                "Media not supported", "Media not usable", "unknown result",
                                "unknown result", "unknown result", "OK", "Failed"));
    });
}

TEST_F(SelfTestTest, WaitCursorIsShownInsideEveryQueryAndGoneInTheDialog) {
    std::vector<int> depths;
    InsideQueries([&] { depths.push_back(desktop->cursorDepth); });
    OpenOn(HealthyDevice(kKrx20), [&](CHeadlessView&) { EXPECT_EQ(desktop->cursorDepth, 0); });
    EXPECT_EQ(depths, std::vector<int>(21, 1));
}

// Failing queries

TEST_F(SelfTestTest, WaitCursorIsGoneWhenAFailingQueryIsReported) {
    FailRow(5, {});
    int depth = -1;
    messageService->whileOpen = [&] { depth = desktop->cursorDepth; };
    OpenOn(HealthyDevice(kKrx20));
    EXPECT_EQ(depth, 0);
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(SelfTestTest, FailingFifthQueryLeavesFourRowsAndAMessage) {
    FailRow(5, {contract::Status::FromBits(0x8007001E), "line lost"});
    OpenOn(HealthyDevice(kKrx20), [](CHeadlessView& view) {
        EXPECT_THAT(Column(view, 0),
                    ElementsAre("Application SW", "Boot code", "EEPROM", "Ethernet"));
        EXPECT_THAT(Column(view, 1), ElementsAre("OK", "OK", "OK", "OK"));
    });
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Cannot get self-test results", "Self-test results",
                                        contract::Status::FromBits(0x8007001E), "line lost")));
    EXPECT_EQ(faults->Calls("SelfTestResults.GetResult"), 5u);
}

TEST_F(SelfTestTest, FailingFirstQueryLeavesAnEmptyList) {
    FailRow(1, {});
    OpenOn(HealthyDevice(kKrx20), [](CHeadlessView& view) { EXPECT_EQ(view.GetRowCount(236), 0); });
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Cannot get self-test results", "Self-test results",
                                        contract::kUnspecifiedFailure)));
    EXPECT_EQ(desktop->prompts.Dialogs().size(), 1u);
}

TEST_F(SelfTestTest, FailingLastQueryLeavesTwentyRows) {
    FailRow(21, {});
    OpenOn(HealthyDevice(kKrx20),
           [](CHeadlessView& view) { EXPECT_EQ(view.GetRowCount(236), 20); });
    EXPECT_EQ(TakeMessages().size(), 1u);
}

// Closing and help

TEST_F(SelfTestTest, OkClosesTheDialog) {
    OpenOn(HealthyDevice(kKrx20), [](CHeadlessView& view) { EXPECT_TRUE(view.Press(1)); });
    EXPECT_EQ(DialogResult(), 1);
}

TEST_F(SelfTestTest, ReturnPressesOk) {
    OpenOn(HealthyDevice(kKrx20), [](CHeadlessView& view) { view.PressReturn(); });
    EXPECT_EQ(DialogResult(), 1);
}

TEST_F(SelfTestTest, EscapeCancelsTheDialog) {
    OpenOn(HealthyDevice(kKrx20), [](CHeadlessView& view) {
        view.PressEscape();
        EXPECT_EQ(view.DialogResult(), 2);
    });
    EXPECT_EQ(DialogResult(), 2);
}

TEST_F(SelfTestTest, CancelButtonIsThereButHidden) {
    OpenOn(HealthyDevice(kKrx20), [](CHeadlessView& view) {
        EXPECT_EQ(view.GetText(2), "Cancel");
        EXPECT_FALSE(view.IsVisible(2));
        EXPECT_FALSE(view.Press(2));
        EXPECT_EQ(view.GetText(1), "OK");
    });
}

TEST_F(SelfTestTest, HelpRequestOpensTheTopicOfTheFocusedControl) {
    OpenOn(HealthyDevice(kKrx20), [](CHeadlessView& view) {
        view.SetFocus(236);
        view.RequestHelp();
        view.SetFocus(1);
        view.RequestHelp();
    });
    constexpr const char* kFile = "component/cmn_krx8maintenanceui.hlp";
    EXPECT_THAT(desktop->helps, ElementsAre(headless::ShownHelp{kFile, 236, Owner::ActiveWindow},
                                            headless::ShownHelp{kFile, 1201, Owner::ActiveWindow}));
}

TEST_F(SelfTestTest, ListSelectsOneRowAtATime) {
    OpenOn(HealthyDevice(kKrx20), [](CHeadlessView& view) {
        EXPECT_THAT(view.GetSelectedRows(236), IsEmpty());
        view.ClickRow(236, 2);
        view.ClickRow(236, 4, headless::Modifier::Control);
        EXPECT_THAT(view.GetSelectedRows(236), ElementsAre(4));
    });
}

// The dialog by itself

TEST(SelfTestTemplateTest, ControlsStandWhereTheyBelong) {
    EXPECT_EQ(kSelfTestTemplate.id, 201);
    EXPECT_EQ(kSelfTestTemplate.size, (Size{198, 238}));
    ASSERT_EQ(kSelfTestTemplate.controls.size(), 3u);
    const ControlTemplate& list = kSelfTestTemplate.controls[0];
    EXPECT_EQ(list.id, 236);
    EXPECT_EQ(list.kind, ControlKind::SingleSelectList);
    EXPECT_EQ(list.rectangle, (Rectangle{7, 7, 184, 202}));
    EXPECT_EQ(kSelfTestTemplate.controls[1].id, 1);
    EXPECT_EQ(kSelfTestTemplate.controls[1].kind, ControlKind::DefaultButton);
    EXPECT_EQ(kSelfTestTemplate.controls[2].id, 2);
    EXPECT_EQ(kSelfTestTemplate.controls[2].state, InitialState::Hidden);
}

class SelfTestByItselfTest : public RoomFixture {};

TEST_F(SelfTestByItselfTest, OtherCommandLeavesTheDialogOpen) {
    const std::shared_ptr<contract::ISelfTestResults> results;
    CSelfTest dialog(results, rooms->services, rooms->help);
    desktop->prompts.AnswerDialog([&](CHeadlessView& view) {
        dialog.OnCommand(3);
        EXPECT_FALSE(view.DialogResult().has_value());
    });
    rooms->toolkit->RunDialog(kSelfTestTemplate, dialog, Owner::Panel);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Cannot get self-test results", "Self-test results",
                                        contract::Status::FromBits(0x80004003))));
}

}
