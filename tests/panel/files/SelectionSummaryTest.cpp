#include "panel/files/SelectionSummary.h"

#include <gtest/gtest.h>

#include <vector>

namespace panel {
namespace {

SelectionSummary Summarize(const std::vector<FileRowKey>& keys) {
    return SummarizeSelection(keys, 9);
}

TEST(SelectionSummaryTest, NothingSelectedHasNothingInCommon) {
    EXPECT_EQ(Summarize({}), (SelectionSummary{0, 9, 0, 0}));
}

TEST(SelectionSummaryTest, OneFileGivesItsTypeAndLocation) {
    EXPECT_EQ(Summarize({MakeFileRowKey(22, 1, 5)}), (SelectionSummary{1, 9, 22, 1}));
}

TEST(SelectionSummaryTest, FilesThatAgreeKeepWhatTheyShare) {
    EXPECT_EQ(Summarize({MakeFileRowKey(22, 1, 5), MakeFileRowKey(22, 2, 6)}),
              (SelectionSummary{2, 9, 22, 0}));
    EXPECT_EQ(Summarize({MakeFileRowKey(22, 2, 5), MakeFileRowKey(21, 2, 6)}),
              (SelectionSummary{2, 9, 0, 2}));
}

TEST(SelectionSummaryTest, LaterAgreementDoesNotBringBackWhatDiffered) {
    EXPECT_EQ(
        Summarize({MakeFileRowKey(22, 1, 5), MakeFileRowKey(21, 2, 6), MakeFileRowKey(22, 1, 7)}),
        (SelectionSummary{3, 9, 0, 0}));
}

}
}
