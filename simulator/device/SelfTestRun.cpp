#include "simulator/device/SelfTestRun.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "simulator/device/PhoneFile.h"

#include <algorithm>

namespace simulator {

namespace {

using contract::SelfTest;

constexpr std::uint32_t BitOf(SelfTest test) { return 1U << (static_cast<std::int32_t>(test) - 1); }
static_assert(BitOf(kInternalFlashMediumTest) == contract::kInternalFlashTest);
static_assert(BitOf(kPcCardMediumTest) == contract::kPcCardTest);

/// Results that say only what was found missing or not tried; the others are faults that stay.
bool CanBeRefreshed(std::int32_t code) {
    return code == kTestNotRun || code == kTestFileMissing || code == kTestMediaNotFound;
}

std::int32_t CodeOf(const DeviceDescription& device, SelfTest test) {
    const auto found = device.selfTests.find(test);
    return found == device.selfTests.end() ? kTestNotRun : found->second;
}

void RunMediumTest(DeviceDescription& device, SelfTest test) {
    const bool isThere = test != kPcCardMediumTest || device.pcCard;
    if (!isThere) {
        device.selfTests[test] = kTestMediaNotFound;
    } else if (CanBeRefreshed(CodeOf(device, test))) {
        device.selfTests[test] = kTestOk;
    }
}

/// A test of files that the device must hold. One that is ignored or not run stays so.
template <class IsWanted>
void RunFileTest(DeviceDescription& device, SelfTest test, const IsWanted& isWanted) {
    const auto code = CodeOf(device, test);
    if (code == kTestNotRun || code == kTestIgnored) {
        return;
    }
    const bool isThere = std::any_of(device.files.begin(), device.files.end(), isWanted);
    if (!isThere) {
        device.selfTests[test] = kTestFileMissing;
    } else if (code == kTestFileMissing) {
        device.selfTests[test] = kTestOk;
    }
}

}

bool HasPassed(const DeviceDescription& device, SelfTest test) {
    const auto code = CodeOf(device, test);
    return code == kTestOk || code == kTestIgnored || code == kTestNotRun;
}

void PassIfPresent(DeviceDescription& device, SelfTest test) {
    if (const auto found = device.selfTests.find(test); found != device.selfTests.end()) {
        found->second = kTestOk;
    }
}

void RunMediaTests(DeviceDescription& device, std::uint32_t mask) {
    for (const auto test : {kInternalFlashMediumTest, kPcCardMediumTest}) {
        if ((mask & BitOf(test)) != 0) {
            RunMediumTest(device, test);
        }
    }
}

void RunStartUpTests(DeviceDescription& device) {
    for (const auto test : {kInternalFlashMediumTest, kPcCardMediumTest}) {
        if (device.selfTests.contains(test)) {
            RunMediumTest(device, test);
        }
    }
    RunFileTest(device, SelfTest::SecondaryAndAlgorithmFiles, [](const StoredFile& file) {
        return file.type == kSecondaryBoot || file.type == kAlgorithm;
    });
    RunFileTest(device, SelfTest::Mcusw, [](const StoredFile& file) {
        return file.type == kMcuSoftware && !IsSameName(file.name, kVersionFileName);
    });
}

}
