#include "tests/sweeps/Events.h"
#include "tests/sweeps/SweepTest.h"

#include <span>

namespace {

using namespace sweeps;

constexpr std::int32_t kNormalMode = 1;
constexpr std::int32_t kServiceMode = 2;

class ReentrancySweepTest : public SweepTest {
protected:
    /// In Normal mode, which takes the longest way through every sequence.
    void FireInEachCall(std::span<const Event> events) {
        CSweep sweep = SweepInMode(kNormalMode);
        for (const Event& event : events) {
            for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
                sweep.Run({.intrusion = Intrusion{Moment::BeforeCall, call, &event}});
                sweep.Run({.intrusion = Intrusion{Moment::AfterCall, call, &event}});
            }
        }
    }

    static void FireInEachBox(CSweep& sweep, const Event& event, Plan plan) {
        const std::size_t boxes = sweep.OpenedWith(plan).boxes;
        for (std::size_t box = 1; box <= boxes; ++box) {
            plan.intrusion = Intrusion{Moment::WhileBoxOpen, box, &event};
            sweep.Run(plan);
        }
    }
};

TEST_P(ReentrancySweepTest, EventInsideEachCallIsHandledAtOnce) {
    FireInEachCall(DeviceAndConnectionEvents());
}

TEST_P(ReentrancySweepTest, InterventionInsideEachCallIsCarriedOutAtOnce) {
    FireInEachCall(HostInterventions());
}

/// Outside Normal mode, so that a warning is among the boxes.
TEST_P(ReentrancySweepTest, AnythingInsideTheWarningIsHandledAtOnce) {
    CSweep sweep = SweepInMode(kServiceMode);
    for (const Event* event : EventsAndInterventions()) {
        FireInEachBox(sweep, *event, {});
        FireInEachBox(sweep, *event, {.failMessageService = true});
    }
}

/// One event for each report, in turn: all reports are made in one place.
TEST_P(ReentrancySweepTest, AnythingInsideAReportIsHandledAtOnce) {
    CSweep sweep = SweepInMode(kNormalMode);
    const auto events = EventsAndInterventions();
    std::size_t turn = 0;
    for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
        const Event& event = *events[++turn % events.size()];
        FireInEachBox(sweep, event, {.spoilt = {{call, Spoiling::Failure}}});
    }
}

/// Outside Normal mode too, where an update is offered.
TEST_P(ReentrancySweepTest, AnythingInsideAnOpenDialogIsHandledAtOnce) {
    for (const std::int32_t mode : {kNormalMode, kServiceMode}) {
        CSweep sweep = SweepInMode(mode);
        for (const Event* event : EventsAndInterventions()) {
            for (std::size_t dialog = 1; dialog <= sweep.Dialogs(); ++dialog) {
                sweep.Run({.intrusion = Intrusion{Moment::WhileDialogOpen, dialog, event}});
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ReentrancySweepTest, testing::ValuesIn(SettingsWithoutRepetition()),
                         SettingName);

/// On one model of each kind, to save time: what a host hands over does not depend on the device.
class RepetitionSweepTest : public ReentrancySweepTest {};

TEST_P(RepetitionSweepTest, RepetitionInsideEachCallIsCarriedOutAtOnce) {
    FireInEachCall(HostRepetitions());
}

std::vector<Setting> SettingsOfEachKind() {
    std::vector<Setting> settings = SettingsWithoutRepetition();
    std::erase_if(settings, [](const Setting& each) {
        return each.model != simulator::kKrx8 && each.model != simulator::kKrx20;
    });
    return settings;
}

INSTANTIATE_TEST_SUITE_P(, RepetitionSweepTest, testing::ValuesIn(SettingsOfEachKind()),
                         SettingName);

}
