// Progress bar and task label of COutputArea.

#include "panel/control/OutputArea.h"

#include "tests/support/PanelFixture.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <ostream>
#include <string>

namespace {

using namespace panel;
using namespace support;

// One and two units in UTF-16.
const std::string kOneUnit = "\xC3\xA4";
const std::string kTwoUnits = "\xF0\x9F\x93\xB1";

std::string Letters(std::size_t count) { return std::string(count, 'a'); }

class OutputAreaProgressTest : public PanelFixture {
protected:
    void SetUp() override { StartView(); }

    void ShowProgress(std::optional<std::string_view> label, std::int32_t position,
                      std::int32_t range) {
        panel->Output().ShowTaskProgress(label, position, range);
    }
};

TEST_F(OutputAreaProgressTest, TaskProgressDrivesBarAndLabel) {
    ShowProgress("Uploading", 300, 800);
    EXPECT_EQ(View().Progress(253), (headless::HeadlessProgress{800, 300}));
    EXPECT_EQ(Field(254), "Uploading  37.5%");
}

TEST_F(OutputAreaProgressTest, TaskProgressStaysHidden) {
    ShowProgress("Uploading", 1, 2);
    EXPECT_FALSE(View().IsVisible(253));
    EXPECT_FALSE(View().IsVisible(254));
}

TEST_F(OutputAreaProgressTest, TaskProgressOfNothingEmptiesTheBar) {
    ShowProgress("Uploading", 300, 800);
    ShowProgress("Idle", 0, 0);
    EXPECT_EQ(View().Progress(253), (headless::HeadlessProgress{800, 0}));
    EXPECT_EQ(Field(254), "Idle  0.0%");
}

TEST_F(OutputAreaProgressTest, TaskProgressAtItsStartSetsTheRange) {
    ShowProgress("Uploading", 0, 5);
    EXPECT_EQ(View().Progress(253), (headless::HeadlessProgress{5, 0}));
}

struct TaskStep {
    std::optional<std::string_view> label;
    std::int32_t position;
    std::int32_t range;
    const char* text;

    friend std::ostream& operator<<(std::ostream& out, const TaskStep& step) {
        return out << '"' << step.text << '"';
    }
};

class TaskLabelTest : public OutputAreaProgressTest,
                      public testing::WithParamInterface<TaskStep> {};

TEST_P(TaskLabelTest, LabelShowsOneDecimal) {
    ShowProgress(GetParam().label, GetParam().position, GetParam().range);
    EXPECT_EQ(Field(254), GetParam().text);
}

constexpr std::int32_t kLargestSigned = std::numeric_limits<std::int32_t>::max();

INSTANTIATE_TEST_SUITE_P(
    Steps, TaskLabelTest,
    testing::Values(TaskStep{"Task", 1, 3, "Task  33.3%"}, TaskStep{"Task", 2, 3, "Task  66.7%"},
                    TaskStep{"Task", 5, 5, "Task  100.0%"}, TaskStep{"Task", 0, 5, "Task  0.0%"},
                    TaskStep{"Task", -1, 2, "Task  -50.0%"}, TaskStep{"", 1, 2, "  50.0%"},
                    TaskStep{std::nullopt, 1, 2, "(null)  50.0%"},
                    TaskStep{std::nullopt, 0, 0, "(null)  0.0%"},
                    TaskStep{"Task", kLargestSigned, kLargestSigned, "Task  100.0%"},
                    TaskStep{"Task", kLargestSigned, 1, "Task  214748364700.0%"},
                    TaskStep{"50% of %s", 1, 2, "50% of %s  50.0%"}));

TEST_F(OutputAreaProgressTest, TaskProgressWithRangeZeroAndAnotherPositionSurvives) {
    ShowProgress("Task", 5, 0);
    EXPECT_EQ(View().Progress(253), (headless::HeadlessProgress{0, 0}));
    EXPECT_EQ(Field(254), "Task  inf%");
    ShowProgress("Task", -5, 0);
    EXPECT_EQ(Field(254), "Task  -inf%");
}

TEST_F(OutputAreaProgressTest, TaskLabelOf100UnitsIsWhole) {
    ShowProgress(Letters(93), 1, 2);
    EXPECT_EQ(Field(254), Letters(93) + "  50.0%");
    ShowProgress(Letters(94), 1, 2);
    EXPECT_EQ(Field(254), Letters(94) + "  50.0");
}

TEST_F(OutputAreaProgressTest, TaskLabelIsCutByUtf16Units) {
    ShowProgress(Letters(99) + kOneUnit, 1, 2);
    EXPECT_EQ(Field(254), Letters(99) + kOneUnit);
    ShowProgress(Letters(98) + kTwoUnits, 1, 2);
    EXPECT_EQ(Field(254), Letters(98) + kTwoUnits);
    ShowProgress(Letters(99) + kTwoUnits, 1, 2);
    EXPECT_EQ(Field(254), Letters(99));
}

TEST_F(OutputAreaProgressTest, TaskProgressWithoutViewIsHarmless) {
    panel->DestroyView();
    ShowProgress("Task", 1, 2);
    ShowProgress("Task", 0, 0);
    EXPECT_EQ(desktop->windows.PanelView(), nullptr);
}

}
