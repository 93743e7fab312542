#include "tests/sweeps/Events.h"
#include "tests/sweeps/SweepTest.h"

#include <span>

namespace {

using namespace sweeps;

class ReentrancySweepTest : public SweepTest {
protected:
    void FireInEachCall(CSweep& sweep, const Event& event) {
        for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
            for (const Moment moment : {Moment::BeforeCall, Moment::AfterCall})
                sweep.Run({.intrusion = Intrusion{moment, call, &event}});
        }
    }

    void FireInEachPrompt(CSweep& sweep, const Event& event, const Plan& plan) {
        Plan disturbed = plan;
        for (std::size_t box = 1; box <= sweep.BoxesWith(plan); ++box) {
            disturbed.intrusion = {Moment::WhileBoxOpen, box, &event};
            sweep.Run(disturbed);
        }
    }

    /// A healthy device in Normal mode takes the longest way through every sequence.
    CSweep SweepInNormalMode() const { return CSweep(*GetParam().scenario, GetParam().model, 1); }
};

TEST_P(ReentrancySweepTest, EventInsideEachCallIsHandledAtOnce) {
    CSweep sweep = SweepInNormalMode();
    for (const Event& event : DeviceAndConnectionEvents())
        FireInEachCall(sweep, event);
}

TEST_P(ReentrancySweepTest, InterventionInsideEachCallIsCarriedOutAtOnce) {
    CSweep sweep = SweepInNormalMode();
    for (const Event& event : HostInterventions())
        FireInEachCall(sweep, event);
}

/// The warning of a device that is not in Normal mode, the reports of failing calls, and both again
/// as plain boxes.
TEST_P(ReentrancySweepTest, AnythingInsideEachBoxIsHandledAtOnce) {
    CSweep sweep(*GetParam().scenario, GetParam().model, 2);
    for (const auto events : {DeviceAndConnectionEvents(), HostInterventions()}) {
        for (const Event& event : events) {
            FireInEachPrompt(sweep, event, {.failMessageService = true});
            for (std::size_t call = 1; call <= sweep.Calls().size(); ++call)
                FireInEachPrompt(sweep, event, {.spoilt = {{call, Spoiling::Failure}}});
        }
    }
}

TEST_P(ReentrancySweepTest, AnythingInsideAnOpenDialogIsHandledAtOnce) {
    CSweep sweep = SweepInNormalMode();
    for (const auto events : {DeviceAndConnectionEvents(), HostInterventions()}) {
        for (const Event& event : events) {
            for (std::size_t dialog = 1; dialog <= sweep.Dialogs(); ++dialog)
                sweep.Run({.intrusion = Intrusion{Moment::WhileDialogOpen, dialog, &event}});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ReentrancySweepTest, testing::ValuesIn(Settings()), SettingName);

}
