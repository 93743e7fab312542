#include "panel/control/Trace.h"
#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class FileListKeysTest : public CommandFixture {
protected:
    void SetUp() override {
        Start();
        desktop->traceLines.clear();
        View().SetFocus(kReportButton);
    }

    /// The key as the view reports it, with the focus left where it is.
    void ReportKey(std::uint16_t virtualKey) { panel->OnListKeyDown(kFileList, virtualKey); }

    void ExpectTraced(const std::string& line) {
        if (kTraceLines) {
            EXPECT_THAT(desktop->traceLines, ElementsAre(line));
        } else {
            EXPECT_THAT(desktop->traceLines, IsEmpty());
        }
    }
};

TEST_F(FileListKeysTest, DeleteKeyDeletesAndGivesTheFocusBackToTheList) {
    messageService->answers.push_back(6);
    ReportKey(0x2E);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(device->calls, ElementsAre("DeleteFile(19, 1)"));
    EXPECT_EQ(View().GetFocus(), kFileList);
    ExpectTraced("CKRX8Maintenance::OnFileListKeyDown: key 0x2E pressed");
}

TEST_F(FileListKeysTest, DeleteKeyLeavesTheControlsEnabled) {
    messageService->answers.push_back(6);
    device->answer = [this](const std::string&) {
        EXPECT_TRUE(IsEnabled(kFileList));
        return contract::kSuccess;
    };
    ReportKey(0x2E);
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(FileListKeysTest, ContextMenuKeyOpensTheMenuAndGivesTheFocusBackToTheList) {
    desktop->prompts.AnswerMenu(0);
    ReportKey(0x5D);
    EXPECT_EQ(desktop->prompts.Menus().size(), 1u);
    EXPECT_EQ(View().GetFocus(), kFileList);
    ExpectTraced("CKRX8Maintenance::OnFileListKeyDown: key 0x5D pressed");
}

TEST_F(FileListKeysTest, LargestKeyCodeIsTracedInSixteenBits) {
    ReportKey(0xFFFF);
    ExpectTraced("CKRX8Maintenance::OnFileListKeyDown: key 0xFFFF pressed");
}

TEST_F(FileListKeysTest, KeysOfOtherListsAreNobodysBusiness) {
    panel->OnListKeyDown(236, 0x2E);
    EXPECT_EQ(View().GetFocus(), kReportButton);
    EXPECT_THAT(desktop->traceLines, IsEmpty());
}

class IgnoredKeyTest : public FileListKeysTest,
                       public testing::WithParamInterface<std::uint16_t> {};

TEST_P(IgnoredKeyTest, OtherKeyChangesNothing) {
    ReportKey(GetParam());
    EXPECT_EQ(View().GetFocus(), kReportButton);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(0));
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
}

// Return, Insert and Help beside Delete, "A", the two Windows keys and Sleep beside the menu key.
INSTANTIATE_TEST_SUITE_P(Keys, IgnoredKeyTest,
                         testing::Values(0x0D, 0x2D, 0x2F, 0x41, 0x5B, 0x5C, 0x5F, 0));

TEST_F(FileListKeysTest, KeysMoveTheSelectionAsTheListDoes) {
    ASSERT_TRUE(View().ClickRow(kFileList, 0));
    ASSERT_TRUE(View().PressKeyInList(kFileList, 0x28));
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(1));
    EXPECT_EQ(RowCount(), 3);
}

}
