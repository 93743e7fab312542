#pragma once

#include "simulator/DeviceDescription.h"
#include "tests/sweeps/Events.h"
#include "tests/sweeps/SweepTest.h"
#include "tests/sweeps/Tier.h"

#include <cstddef>
#include <vector>

namespace sweeps {

/// The commands that a user gives.
///
/// Most end with a refresh or a listing, which has sweeps of its own: of its calls one in so many
/// is disturbed here, another one on each model. A command's own calls are all disturbed.
///
/// The full tier does everything to each of them; the daily one takes turns. In full, the first
/// model of a command that refreshes while polling is suspended has, in its first mode, all calls
/// disturbed: no other sweep refreshes in that state.
class CommandSweepTest : public SweepTest {
protected:
    /// Two models take the same way through every command as their neighbours, the KRX-8 and the
    /// KRX-21.
    static bool IsLikeAnotherModel(const Setting& setting) {
        return setting.model == simulator::kKrx8c || setting.model == simulator::kKrx20;
    }

    static bool IsFirstModel() { return GetParam().model == GetParam().scenario->models.front(); }

    /// Whether polling is switched on again straight after a refresh.
    static bool RefreshesWithoutPolling(const CSweep& sweep) {
        const auto& calls = sweep.Calls();
        for (std::size_t call = 2; call <= calls.size(); ++call) {
            if (calls[call - 1] == "ProductDetection.QueryProductDetectionControl" &&
                sweep.IsOfRefresh(call - 1)) {
                return true;
            }
        }
        return false;
    }

    /// The calls to be disturbed.
    static std::vector<std::size_t> Picked(const CSweep& sweep) {
        constexpr std::size_t kOneInSoMany = 37;
        const bool isEachPicked = IsFullTier() && IsFirstModel() && sweep.IsInFirstMode() &&
                                  RefreshesWithoutPolling(sweep);
        std::vector<std::size_t> picked;
        for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
            if (isEachPicked || !sweep.IsOfRefresh(call) || (call + Model()) % kOneInSoMany == 0) {
                picked.push_back(call);
            }
        }
        return picked;
    }

    /// With that plan, each call of the command's own that it leads to fails.
    static void FailEachCall(CSweep& sweep, Plan plan) {
        for (const std::size_t call : sweep.OwnCallsWith(plan)) {
            plan.spoilt = {{call, Spoiling::Failure}};
            sweep.Run(plan);
        }
    }

    /// With that plan, everything happens in every prompt that it leads to.
    static void FireInEachPrompt(CSweep& sweep, Plan plan) {
        const CSweep::Opened opened = sweep.OpenedWith(plan);
        for (const Event* event : EventsAndInterventions()) {
            for (std::size_t box = 1; box <= opened.boxes; ++box) {
                plan.intrusion = Intrusion{Moment::WhileBoxOpen, box, event};
                sweep.Run(plan);
            }
            for (std::size_t dialog = 1; dialog <= opened.dialogs; ++dialog) {
                plan.intrusion = Intrusion{Moment::WhileDialogOpen, dialog, event};
                sweep.Run(plan);
            }
        }
    }

    /// Plays `sweep` in each of the scenario's modes, or, on ordinary days, in the first.
    template <class Body>
    void InEachModeOfTier(const Body& body) {
        if (IsFullTier()) {
            InEachMode(body);
            return;
        }
        CSweep sweep = SweepInMode(GetParam().scenario->modes.front());
        body(sweep);
    }

    static std::size_t Model() { return static_cast<std::size_t>(GetParam().model); }
};

}
