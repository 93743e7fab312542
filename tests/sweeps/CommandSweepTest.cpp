#include "tests/sweeps/CommandSweep.h"

namespace {

using namespace sweeps;

class FaultyCommandSweepTest : public CommandSweepTest {
protected:
    /// Lets that call go wrong: in every way, or, on ordinary days and where other settings take
    /// the same way through the command, in one way, another one for each call.
    static void Spoil(CSweep& sweep, std::size_t call) {
        const bool isLikeAnother = IsLikeAnotherModel(GetParam()) || !sweep.IsInFirstMode();
        const auto isDue = [&](std::size_t way) {
            return IsFullTier() || !isLikeAnother || (call + Model()) % 3 == way;
        };
        if (isDue(0)) {
            sweep.Run({.spoilt = {{call, Spoiling::Failure}}});
        }
        if (isDue(1)) {
            sweep.Run({.lossInCall = call});
        }
        if (isDue(2) && sweep.DeliversObject(call)) {
            sweep.Run({.spoilt = {{call, Spoiling::Null}}});
        }
    }
};

TEST_P(FaultyCommandSweepTest, EachSpoiltCallIsReportedAsDescribed) {
    InEachMode([](CSweep& sweep) {
        for (const std::size_t call : Picked(sweep)) {
            Spoil(sweep, call);
        }
        sweep.Run({.spoilt = {{sweep.Calls().size() + 1, Spoiling::Failure}}});
    });
}

INSTANTIATE_TEST_SUITE_P(, FaultyCommandSweepTest, testing::ValuesIn(CommandSettings()),
                         SettingName);

class UpdateOutcomeSweepTest : public CommandSweepTest {
protected:
    static std::vector<contract::Status> OtherSuccesses() {
        return {contract::Status::FromBits(0x041B1010), contract::Status::FromBits(1)};
    }
};

/// The device updates itself in part, or with a success of its own.
TEST_P(UpdateOutcomeSweepTest, EachSuccessIsToldAndFollowedByARefresh) {
    InEachMode([](CSweep& sweep) {
        ASSERT_THAT(sweep.Calls(), testing::Contains("ProgrammingDeviceControl.UpdateFromIniFile"));
        for (const contract::Status status : OtherSuccesses()) {
            sweep.Run({.updateStatus = status});
            sweep.Run({.failMessageService = true, .updateStatus = status});
            if (IsFullTier()) {
                FailEachCall(sweep, {.updateStatus = status});
                FireInEachPrompt(sweep, {.updateStatus = status});
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, UpdateOutcomeSweepTest, testing::ValuesIn(UpdateSettings()),
                         SettingName);

}
