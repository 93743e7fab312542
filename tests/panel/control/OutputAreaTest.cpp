// The status log of COutputArea; its progress and messages are in files of their own.

#include "panel/control/OutputArea.h"

#include "tests/support/PanelFixture.h"

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

namespace {

using namespace panel;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kLargest = 4294967295;

// Characters of two and four bytes in UTF-8.
const std::string kTwoBytes = "\xC3\xA4";
const std::string kFourBytes = "\xF0\x9F\x93\xB1";

std::string Letters(std::size_t count) { return std::string(count, 'a'); }

class OutputAreaTest : public PanelFixture {
protected:
    void SetUp() override { StartView(); }

    void Append(const std::string& text) { panel->Output().AppendStatusLine(text); }
    void Append(const std::string& text, std::uint32_t done, std::uint32_t total) {
        panel->Output().AppendStatusLine(text, done, total);
    }
};

// Plain lines

TEST_F(OutputAreaTest, PlainLineIsAppendedAndEnded) {
    Append("Resetting");
    EXPECT_EQ(View().GetText(259), "Resetting\r\n");
    Append("Done");
    EXPECT_EQ(View().GetText(259), "Resetting\r\nDone\r\n");
}

TEST_F(OutputAreaTest, AbsentOrEmptyTextWritesNothing) {
    panel->Output().AppendStatusLine(std::nullopt);
    panel->Output().AppendStatusLine(std::nullopt, 1, 2);
    Append("");
    Append("", 1, 2);
    EXPECT_EQ(View().GetText(259), "");
}

TEST_F(OutputAreaTest, EmptyTextLeavesTheMemory) {
    Append("Resetting", 1, 2);
    Append("", 3, 4);
    Append("");
    Append("Resetting", 1, 2);
    EXPECT_THAT(Log(), ElementsAre("Resetting 50%"));
}

TEST_F(OutputAreaTest, RepeatedPlainLineIsWrittenOnce) {
    Append("Resetting");
    Append("Resetting");
    EXPECT_THAT(Log(), ElementsAre("Resetting"));
}

TEST_F(OutputAreaTest, RepeatAfterAnotherLineIsWrittenAgain) {
    Append("Resetting");
    Append("Done");
    Append("Resetting");
    EXPECT_THAT(Log(), ElementsAre("Resetting", "Done", "Resetting"));
}

TEST_F(OutputAreaTest, RepeatInAnotherCaseIsWritten) {
    Append("Resetting");
    Append("resetting");
    EXPECT_THAT(Log(), ElementsAre("Resetting", "resetting"));
}

TEST_F(OutputAreaTest, PlainLineOf259BytesIsWholeAndRemembered) {
    Append(Letters(259));
    Append(Letters(259));
    EXPECT_THAT(Log(), ElementsAre(Letters(259)));
}

TEST_F(OutputAreaTest, PlainLineOf260BytesIsCutAndWrittenAgain) {
    Append(Letters(260));
    Append(Letters(260));
    EXPECT_THAT(Log(), ElementsAre(Letters(259), Letters(259)));
}

TEST_F(OutputAreaTest, PlainLineIsComparedWithTheLineAsWritten) {
    Append(Letters(260));
    Append(Letters(259));
    EXPECT_THAT(Log(), ElementsAre(Letters(259)));
}

TEST_F(OutputAreaTest, PlainLineIsCutBeforeACharacterThatDoesNotFit) {
    Append(Letters(257) + kTwoBytes);
    Append(Letters(258) + kTwoBytes);
    Append(Letters(256) + kFourBytes);
    EXPECT_THAT(Log(), ElementsAre(Letters(257) + kTwoBytes, Letters(258), Letters(256)));
}

// Lines with a percentage

struct Count {
    std::uint32_t done;
    std::uint32_t total;
    const char* line;

    friend std::ostream& operator<<(std::ostream& out, const Count& count) {
        return out << count.done << " of " << count.total;
    }
};

class OutputAreaPercentTest : public OutputAreaTest, public testing::WithParamInterface<Count> {};

TEST_P(OutputAreaPercentTest, CountIsShownInWholePercent) {
    Append("Deleting files", GetParam().done, GetParam().total);
    EXPECT_THAT(Log(), ElementsAre(GetParam().line));
}

INSTANTIATE_TEST_SUITE_P(
    Counts, OutputAreaPercentTest,
    testing::Values(Count{0, 3, "Deleting files 0%"}, Count{1, 3, "Deleting files 33%"},
                    Count{2, 3, "Deleting files 66%"}, Count{3, 3, "Deleting files 100%"},
                    // A tenth is added before the fraction is dropped.
                    Count{9989, 10000, "Deleting files 99%"},
                    Count{9991, 10000, "Deleting files 100%"},
                    Count{9995, 10000, "Deleting files 100%"}, Count{7, 2, "Deleting files 350%"},
                    Count{2147483648, kLargest, "Deleting files 50%"},
                    Count{kLargest, kLargest, "Deleting files 100%"},
                    // 32 bits saturate.
                    Count{42949672, 1, "Deleting files 4294967200%"},
                    Count{42949673, 1, "Deleting files 4294967295%"},
                    Count{kLargest, 1, "Deleting files 4294967295%"}));

TEST_F(OutputAreaTest, RepeatedPercentageIsWrittenOnce) {
    Append("Deleting files", 1, 3);
    Append("Deleting files", 1, 3);
    Append("Deleting files", 333, 1000);
    EXPECT_THAT(Log(), ElementsAre("Deleting files 33%"));
}

TEST_F(OutputAreaTest, RepeatedPercentageInAnotherCaseIsWritten) {
    Append("Deleting files", 1, 3);
    Append("deleting files", 1, 3);
    EXPECT_THAT(Log(), ElementsAre("Deleting files 33%", "deleting files 33%"));
}

TEST_F(OutputAreaTest, ChangedPercentageOrTextIsWritten) {
    Append("Deleting files", 1, 3);
    Append("Deleting files", 2, 3);
    Append("Moving files", 2, 3);
    EXPECT_THAT(Log(), ElementsAre("Deleting files 33%", "Deleting files 66%", "Moving files 66%"));
}

TEST_F(OutputAreaTest, OneMillionMessagesWriteAHundredLines) {
    for (std::uint32_t done = 0; done <= 1000000; ++done) {
        Append("Uploading", done, 1000000);
    }
    EXPECT_EQ(Log().size(), 101u);
}

TEST_F(OutputAreaTest, PlainLineAfterTheSameTextWithAPercentageIsNotWritten) {
    Append("Deleting files", 1, 3);
    Append("Deleting files");
    EXPECT_THAT(Log(), ElementsAre("Deleting files 33%"));
}

TEST_F(OutputAreaTest, PercentageOfAnEarlierLineStillCountsAfterAPlainLine) {
    Append("Deleting files", 1, 2);
    Append("Moving files");
    Append("Moving files", 1, 2);
    EXPECT_THAT(Log(), ElementsAre("Deleting files 50%", "Moving files"));
    Append("Moving files", 2, 3);
    EXPECT_THAT(Log(), ElementsAre("Deleting files 50%", "Moving files", "Moving files 66%"));
}

TEST_F(OutputAreaTest, PercentageStartsAtZero) {
    Append("Deleting files");
    Append("Deleting files", 0, 3);
    EXPECT_THAT(Log(), ElementsAre("Deleting files"));
}

TEST_F(OutputAreaTest, LineWithPercentageOf260BytesIsWhole) {
    Append(Letters(256), 1, 2);
    EXPECT_THAT(Log(), ElementsAre(Letters(256) + " 50%"));
}

TEST_F(OutputAreaTest, LineWithPercentageOf261BytesLosesItsEnd) {
    Append(Letters(257), 1, 2);
    EXPECT_THAT(Log(), ElementsAre(Letters(257) + " 50"));
}

TEST_F(OutputAreaTest, LineWithPercentageIsCutBeforeACharacterThatDoesNotFit) {
    Append(Letters(258) + kTwoBytes, 1, 2);
    Append(Letters(259) + kTwoBytes, 1, 2);
    Append(Letters(257) + kFourBytes, 1, 2);
    EXPECT_THAT(Log(), ElementsAre(Letters(258) + kTwoBytes, Letters(259), Letters(257)));
}

TEST_F(OutputAreaTest, PercentageTextOf260BytesIsRemembered) {
    Append(Letters(260), 1, 2);
    Append(Letters(260), 1, 2);
    EXPECT_THAT(Log(), ElementsAre(Letters(260)));
}

TEST_F(OutputAreaTest, PercentageTextOf261BytesIsWrittenAgain) {
    Append(Letters(261), 1, 2);
    Append(Letters(261), 1, 2);
    EXPECT_THAT(Log(), ElementsAre(Letters(260), Letters(260)));
}

TEST_F(OutputAreaTest, PercentageTextIsRememberedCutTo260) {
    Append(Letters(261), 1, 2);
    Append(Letters(260));
    Append(Letters(260), 1, 2);
    EXPECT_THAT(Log(), ElementsAre(Letters(260)));
}

// The log

TEST_F(OutputAreaTest, ClearingTakesTheTextAndKeepsTheMemory) {
    Append("Deleting files", 1, 2);
    panel->Output().ClearStatusLog();
    EXPECT_EQ(View().GetText(259), "");
    Append("Deleting files", 1, 2);
    Append("Deleting files");
    EXPECT_EQ(View().GetText(259), "");
    Append("Deleting files", 2, 2);
    EXPECT_THAT(Log(), ElementsAre("Deleting files 100%"));
}

TEST_F(OutputAreaTest, LogTakesTextWithoutBound) {
    for (int line = 0; line < 2000; ++line) {
        Append(std::to_string(line) + Letters(100));
    }
    EXPECT_EQ(Log().size(), 2000u);
    EXPECT_EQ(Log().back(), "1999" + Letters(100));
}

TEST_F(OutputAreaTest, AppendingWithoutViewIsHarmless) {
    panel->DestroyView();
    Append("Resetting");
    Append("Resetting", 1, 2);
    panel->Output().ClearStatusLog();
    EXPECT_EQ(desktop->windows.PanelView(), nullptr);
}

}
