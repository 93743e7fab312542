#include "tests/sweeps/SweepTest.h"

namespace {

using namespace sweeps;

class FaultSweepTest : public SweepTest {};

TEST_P(FaultSweepTest, EachFailingCallIsReportedAsDescribed) {
    InEachMode([](CSweep& sweep) {
        for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
            sweep.Run({.spoilt = {{call, Spoiling::Failure}}});
        }
    });
}

TEST_P(FaultSweepTest, EachNullObjectIsReportedAsDescribed) {
    InEachMode([](CSweep& sweep) {
        for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
            if (sweep.DeliversObject(call)) {
                sweep.Run({.spoilt = {{call, Spoiling::Null}}});
            }
        }
    });
}

TEST_P(FaultSweepTest, FailureBehindTheLastCallIsNeverReached) {
    InEachMode([](CSweep& sweep) {
        sweep.Run({.spoilt = {{sweep.Calls().size() + 1, Spoiling::Failure}}});
    });
}

TEST_P(FaultSweepTest, FailingMessageServiceLeavesPlainBoxes) {
    CSweep sweep = SweepInMode(2);
    for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
        sweep.Run({.spoilt = {{call, Spoiling::Failure}}, .failMessageService = true});
    }
}

/// The second failure meets whatever the panel does after the first: its report, the steps that go
/// on, or nothing at all. It must not be reported with the words of the first.
TEST_P(FaultSweepTest, SecondFailureIsReportedAsDescribed) {
    CSweep sweep = SweepInMode(1);
    for (std::size_t call = 1; call <= sweep.Calls().size(); call += 3) {
        for (const std::size_t later : {call + 1, call + 2, call + 3}) {
            sweep.Run({.spoilt = {{call, Spoiling::Failure},
                                  {later, Spoiling::FailureWithoutDescription}}});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, FaultSweepTest, testing::ValuesIn(Settings()), SettingName);

}
