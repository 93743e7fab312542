#pragma once

#include "simulator/DeviceDescription.h"
#include "tests/sweeps/Plan.h"

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
    /// How the user answers.
    Answers answers = {};
    /// Of the update package on the workstation; that on the device is 2.5.13.
    const char* packageVersion = "2.5.13";
    /// The device is updated from a description.
    bool updates = false;
    /// The device, a KRX-20 at first, says in the end that it is of a type that nobody knows.
    bool becomesUnknown = false;
};

/// How a panel starts and shows its device. Connect comes first.
std::span<const Scenario> Scenarios();

/// The commands that a user gives it.
std::span<const Scenario> Commands();

/// Whether a device's host polls for phones at first; not while it serves a device in Service mode,
/// for a panel that must not switch on what was off.
bool PollsAtFirst(const simulator::DeviceDescription& device);

/// The device that a scenario is played with: four files, one without a name, one "Version.FIA" in
/// unusual letters, two of them in RAM.
simulator::DeviceDescription MakeDevice(const Scenario& scenario, std::int32_t model,
                                        std::int32_t mode);

}
