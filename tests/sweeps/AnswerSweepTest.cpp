#include "tests/sweeps/CommandSweep.h"
#include "tests/sweeps/OtherAnswers.h"

namespace {

using namespace sweeps;

/// Every way in which a prompt can be answered.
class AnswerSweepTest : public CommandSweepTest {};

TEST_P(AnswerSweepTest, EachAnswerIsFollowedAsDescribed) {
    InEachModeOfTier([](CSweep& sweep) {
        sweep.Run({.failMessageService = true});
        for (const Answers& answers : OtherAnswers(sweep)) {
            sweep.Run({.answers = answers});
            if (sweep.AsksQuestion() || IsFullTier()) {
                sweep.Run({.failMessageService = true, .answers = answers});
            }
            if (IsFullTier()) {
                FailEachCall(sweep, {.answers = answers});
                FireInEachPrompt(sweep, {.answers = answers});
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, AnswerSweepTest, testing::ValuesIn(CommandSettings()), SettingName);

}
