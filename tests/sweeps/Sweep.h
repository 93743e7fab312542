#pragma once

#include "tests/sweeps/Expectation.h"
#include "tests/sweeps/Observation.h"
#include "tests/sweeps/Plan.h"
#include "tests/sweeps/Scenario.h"
#include "tests/sweeps/SweepPanel.h"

#include <cstddef>
#include <cstdint>
#include <optional>
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

    /// What the undisturbed scenario calls, and the boxes, and the dialogs and menus, that it
    /// opens.
    const std::vector<std::string_view>& Calls() const { return m_calls; }
    std::size_t Boxes() const { return m_boxes; }
    std::size_t Dialogs() const { return m_dialogs; }
    bool Shows(CExpectation::Prompt::Kind kind) const;
    bool AsksQuestion() const { return m_asksQuestion; }
    bool IsInFirstMode() const { return m_device.mode == m_scenario.modes.front(); }
    const Answers& UserAnswers() const { return m_scenario.answers; }
    bool DeliversObject(std::size_t call) const;
    /// Whether that call belongs to a refresh or to a listing of the files.
    bool IsOfRefresh(std::size_t call) const;

    /// Plays the scenario with `plan`; failures name scenario, model, mode and plan.
    void Run(const Plan& plan);

    /// What opens in the scenario as `plan` disturbs it: boxes, and dialogs and menus.
    struct Opened {
        std::size_t boxes;
        std::size_t dialogs;
        /// The number of the box that comes after the first call that was spoilt.
        std::size_t boxAfterFault;
    };
    Opened OpenedWith(const Plan& plan) const;
    /// The calls in it that belong neither to a refresh nor to a listing.
    std::vector<std::size_t> OwnCallsWith(const Plan& plan) const;

private:
    struct Pair {
        Pair(const simulator::DeviceDescription& device, const std::string& packageVersion)
            : expected(device, packageVersion), actual(device, packageVersion) {}

        void ForgetWhatWasSeen() {
            static_cast<void>(expected.Take());
            static_cast<void>(actual.Take());
        }

        CExpectation expected;
        CSweepPanel actual;
    };

    /// With the scenario's answers where it has none.
    Plan WithAnswers(Plan plan) const;
    std::string Describe(const Plan& plan) const;
    void Play(Pair& pair, const Plan& plan, void (*act)(IStage&));
    Observation Compare(Pair& pair, const char* when);
    void ExpectLeftAsFound(const Observation& seen, const Plan& plan) const;
    void PlayAgain(Pair& pair, const Plan& plan);

    const Scenario& m_scenario;
    const std::int32_t m_model;
    const simulator::DeviceDescription m_device;
    std::vector<std::string_view> m_calls;
    std::vector<std::size_t> m_callsOfRefresh;
    std::size_t m_boxes = 0;
    std::size_t m_dialogs = 0;
    std::vector<CExpectation::Prompt> m_prompts;
    bool m_asksQuestion = false;
    /// After the scenario has been played, undisturbed, and gone on.
    std::optional<Picture> m_undisturbed;
    std::optional<Kept> m_undisturbedKept;
};

}
