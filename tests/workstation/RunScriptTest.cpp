#include "tests/workstation/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class RunScriptTest : public ProgramRun {};

TEST_F(RunScriptTest, RefusesWhatTheProgramDoesNotKnow) {
    const Outcome outcome = Run({"--colour"}, KRX8_RUN_SCRIPT);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "run: unknown option '--colour'; ./run --help lists the options\n");
}

TEST_F(RunScriptTest, RefusesAnOptionWithoutItsValue) {
    const Outcome outcome = Run({"--text", "--device"}, KRX8_RUN_SCRIPT);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors,
              "run: option --device needs a value; ./run --help lists the options\n");
}

TEST_F(RunScriptTest, HelpsWithTheProgramsOptionsToo) {
    const Outcome outcome = Run({"--help"}, KRX8_RUN_SCRIPT);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith("Usage: ./run [OPTION]...\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\n  --snapshot FILE.png "));
}

}
