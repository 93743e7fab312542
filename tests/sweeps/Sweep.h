#pragma once

#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/Observation.h"
#include "tests/sweeps/Plan.h"
#include "tests/sweeps/Scenario.h"
#include "tests/sweeps/SweepPanel.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sweeps {

/// One scenario with one model in one mode, played again and again with one thing after the other
/// going wrong.
///
/// Each run has a panel and a host of its own. It is compared with what is expected of it, call for
/// call and text for text; then the scenario goes on without disturbance on the same panel, which
/// must come to show exactly what one shows that was never disturbed.
class CSweep {
public:
    /// Plays the scenario undisturbed.
    CSweep(const Scenario& scenario, std::int32_t model, std::int32_t mode);

    /// What the undisturbed scenario calls, and the boxes and dialogs that it opens.
    const std::vector<std::string_view>& Calls() const { return m_calls; }
    std::size_t Boxes() const { return m_boxes; }
    std::size_t Dialogs() const { return m_dialogs; }
    bool DeliversObject(std::size_t call) const;

    /// Plays the scenario with `plan`; failures name scenario, model, mode and plan.
    void Run(const Plan& plan);

    /// What opens in the scenario as `plan` disturbs it.
    std::size_t BoxesWith(const Plan& plan) const;

private:
    struct Pair {
        explicit Pair(const simulator::DeviceDescription& device)
            : expected(device), actual(device) {}

        void ForgetWhatWasSeen() {
            static_cast<void>(expected.Take());
            static_cast<void>(actual.Take());
        }

        CExpectation expected;
        CSweepPanel actual;
    };

    std::string Describe(const Plan& plan) const;
    void Play(Pair& pair, const Plan& plan, void (*act)(IStage&));
    Observation Compare(Pair& pair, const char* when);
    void PlayAgain(Pair& pair, const Plan& plan);

    const Scenario& m_scenario;
    const simulator::DeviceDescription m_device;
    std::vector<std::string_view> m_calls;
    std::size_t m_boxes = 0;
    std::size_t m_dialogs = 0;
    /// After the scenario has been played, undisturbed, and gone on.
    std::optional<Picture> m_undisturbed;
    std::optional<Kept> m_undisturbedKept;
};

}
