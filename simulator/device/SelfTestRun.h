#pragma once

#include "simulator/DeviceDescription.h"

#include <cstdint>

/// Self-tests, run on what a device holds.
///
/// A described result stays, as a fault of the device would, unless the test can see for itself:
/// whether a medium is there and whether there are files.
namespace simulator {

/// Whether the test passed, was ignored or was not run.
bool HasPassed(const DeviceDescription& device, contract::SelfTest test);

/// Gives a good result to a test of what has just been replaced, if the device has that test.
void PassIfPresent(DeviceDescription& device, contract::SelfTest test);

/// The test of a medium, which is also bit (test - 1) of the mask of RerunMediaTests.
inline constexpr auto kInternalFlashMediumTest = contract::SelfTest::ZtwcdcDriver;
inline constexpr auto kPcCardMediumTest = contract::SelfTest::MmcrDriver;

/// Runs the tests in `mask` (kInternalFlashTest, kPcCardTest).
void RunMediaTests(DeviceDescription& device, std::uint32_t mask);

/// Runs the tests that the device has, as it does when it starts.
void RunStartUpTests(DeviceDescription& device);

}
