#pragma once

#include "simulator/DeviceDescription.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace sweeps {

class IStage;

/// A stretch of a panel's life that is swept.
///
/// A command that comes later joins by one row in Scenario.cpp and by what is expected of it (see
/// Expectation.h).
struct Scenario {
    const char* name;
    /// Brings the panel to where the action begins; goes well.
    void (*setUp)(IStage&);
    /// What is swept.
    void (*action)(IStage&);
    /// What a host does next when the action went wrong; goes well.
    void (*again)(IStage&);
    std::vector<std::int32_t> models;
    std::vector<std::int32_t> modes;
    /// Gives the device one failed self-test.
    bool needsFailedTest = false;
    /// Left out of the sweeps of events, as a scenario that another one contains.
    bool isContainedInAnother = false;
};

/// Connect comes first.
std::span<const Scenario> Scenarios();

/// The device that a scenario is played with: four files, one without a name, one
/// "Version.FIA" in unusual letters.
simulator::DeviceDescription MakeDevice(const Scenario& scenario, std::int32_t model,
                                        std::int32_t mode);

}
