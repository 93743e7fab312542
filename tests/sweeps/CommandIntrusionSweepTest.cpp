#include "tests/sweeps/CommandSweep.h"

namespace {

using namespace sweeps;

/// Events, and what a host does of itself, inside a command's calls and in the reports of those
/// that fail. On ordinary days one of them at each place, in turn, and only at every third place
/// where another model takes the same way.
class IntrusionSweepTest : public CommandSweepTest {
protected:
    static bool IsDue(std::size_t call) {
        return !IsLikeAnotherModel(GetParam()) || (call + Model()) % 3 == 0;
    }

    /// Another event at each turn, and another one on each model.
    const Event& NextEvent() {
        static const std::vector<const Event*> events = EventsAndInterventions();
        return *events[(m_turn++ + Model()) % events.size()];
    }

    /// Before or after each call, and in every second report.
    void FireInTurn(CSweep& sweep, std::size_t call) {
        const bool isOdd = (call + Model()) % 2 == 1;
        const Moment moment = isOdd ? Moment::BeforeCall : Moment::AfterCall;
        sweep.Run({.intrusion = Intrusion{moment, call, &NextEvent()}});
        if (isOdd) {
            FireInReport(sweep, call, NextEvent());
        }
    }

    static void FireEverything(CSweep& sweep, std::size_t call) {
        for (const Event* event : EventsAndInterventions()) {
            sweep.Run({.intrusion = Intrusion{Moment::BeforeCall, call, event}});
            sweep.Run({.intrusion = Intrusion{Moment::AfterCall, call, event}});
            FireInReport(sweep, call, *event);
        }
    }

private:
    static void FireInReport(CSweep& sweep, std::size_t call, const Event& event) {
        Plan plan{.spoilt = {{call, Spoiling::Failure}}};
        const CSweep::Opened opened = sweep.OpenedWith(plan);
        if (opened.boxAfterFault <= opened.boxes) {
            plan.intrusion = Intrusion{Moment::WhileBoxOpen, opened.boxAfterFault, &event};
            sweep.Run(plan);
        }
    }

    std::size_t m_turn = 0;
};

TEST_P(IntrusionSweepTest, AnythingInsideCallsAndReportsIsHandledAtOnce) {
    InEachModeOfTier([this](CSweep& sweep) {
        for (const std::size_t call : Picked(sweep)) {
            if (IsFullTier()) {
                FireEverything(sweep, call);
            } else if (IsDue(call)) {
                FireInTurn(sweep, call);
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, IntrusionSweepTest, testing::ValuesIn(CommandSettings()), SettingName);

/// On ordinary days every second event on the first model of a command, every other second one on
/// the last, and one in six on those between.
class PromptSweepTest : public CommandSweepTest {
protected:
    static void FireInPrompts(CSweep& sweep, const Event& event) {
        for (std::size_t box = 1; box <= sweep.Boxes(); ++box) {
            sweep.Run({.intrusion = Intrusion{Moment::WhileBoxOpen, box, &event}});
        }
        for (std::size_t dialog = 1; dialog <= sweep.Dialogs(); ++dialog) {
            sweep.Run({.intrusion = Intrusion{Moment::WhileDialogOpen, dialog, &event}});
        }
    }

    static bool IsDue(std::size_t number) {
        const auto& models = GetParam().scenario->models;
        if (IsFullTier() || models.size() == 1) {
            return true;
        }
        if (GetParam().model == models.front()) {
            return number % 2 == 0;
        }
        return GetParam().model == models.back() ? number % 2 == 1 : number % 6 == Model();
    }
};

TEST_P(PromptSweepTest, AnythingInsideEachPromptIsHandledAtOnce) {
    InEachModeOfTier([](CSweep& sweep) {
        std::size_t number = 0;
        for (const Event* event : EventsAndInterventions()) {
            if (IsDue(++number)) {
                FireInPrompts(sweep, *event);
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, PromptSweepTest, testing::ValuesIn(CommandSettings()), SettingName);

}
