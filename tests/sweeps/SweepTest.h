#pragma once

#include "tests/sweeps/Scenario.h"
#include "tests/sweeps/Sweep.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace sweeps {

/// One scenario on one model; each test goes through the modes.
struct Setting {
    const Scenario* scenario;
    std::int32_t model;

    std::string Name() const {
        return std::string(scenario->name) + "OnModel" + std::to_string(model);
    }
    friend std::ostream& operator<<(std::ostream& out, const Setting& setting) {
        return out << setting.Name();
    }
};

inline std::vector<Setting> SettingsOf(std::span<const Scenario> scenarios) {
    std::vector<Setting> settings;
    for (const Scenario& scenario : scenarios) {
        for (const std::int32_t model : scenario.models) {
            settings.push_back({&scenario, model});
        }
    }
    return settings;
}

inline std::vector<Setting> Settings() { return SettingsOf(Scenarios()); }

inline std::vector<Setting> CommandSettings() { return SettingsOf(Commands()); }

/// The commands that update the device from a description.
inline std::vector<Setting> UpdateSettings() {
    std::vector<Setting> settings = CommandSettings();
    std::erase_if(settings, [](const Setting& setting) { return !setting.scenario->updates; });
    return settings;
}

/// Without the scenarios that another one contains.
inline std::vector<Setting> SettingsWithoutRepetition() {
    std::vector<Setting> settings = Settings();
    std::erase_if(settings,
                  [](const Setting& setting) { return setting.scenario->isContainedInAnother; });
    return settings;
}

inline std::string SettingName(const testing::TestParamInfo<Setting>& info) {
    return info.param.Name();
}

class SweepTest : public testing::TestWithParam<Setting> {
protected:
    CSweep SweepInMode(std::int32_t mode) const {
        return CSweep(*GetParam().scenario, GetParam().model, mode);
    }

    /// Plays `sweep` with the scenario in each of its modes.
    template <class Body>
    void InEachMode(const Body& body) {
        for (const std::int32_t mode : GetParam().scenario->modes) {
            CSweep sweep = SweepInMode(mode);
            ASSERT_FALSE(HasFailure());
            body(sweep);
        }
    }
};

}
