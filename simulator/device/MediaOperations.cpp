#include "simulator/device/MediaOperations.h"

#include "simulator/device/SelfTestRun.h"

#include <string>
#include <utility>

namespace simulator {

namespace {

/// A medium, the location of the files on it and its self-test.
struct MediumFacts {
    contract::Medium medium;
    const char* name;
    std::int32_t location;
    contract::SelfTest test;
};

constexpr MediumFacts kMedia[] = {
    {contract::Medium::InternalFlash, "the internal flash", kInFlash, kInternalFlashMediumTest},
    {contract::Medium::PcCard, "the memory card", kOnPcCard, kPcCardMediumTest}};

Outcome Format(CDevice& device, const MediumFacts& medium) {
    if (medium.medium == contract::Medium::PcCard && !device.Description().pcCard) {
        return Failure{kNotReady, "There is no memory card in the device"};
    }
    device.RaiseMessage(std::string("Formatting ") + medium.name, 0, 0);
    auto next = device.State();
    std::erase_if(next.files,
                  [&](const StoredFile& file) { return file.location == medium.location; });
    next.selfTests[medium.test] = kTestNotRun;
    next.mode = kMaintenanceMode;
    if (auto failure = device.Change(std::move(next))) {
        return failure;
    }
    device.EnterMode(kMaintenanceMode);
    return std::nullopt;
}

}

Outcome PrepareMedia(CDevice& device, contract::Medium medium) {
    for (const auto& facts : kMedia) {
        if (facts.medium == medium) {
            return Format(device, facts);
        }
    }
    return Failure{kInvalidArgument,
                   "There is no medium " + std::to_string(static_cast<std::int32_t>(medium))};
}

Outcome RerunMediaTests(CDevice& device, std::uint32_t mask) {
    if ((mask & ~(contract::kInternalFlashTest | contract::kPcCardTest)) != 0) {
        return Failure{kInvalidArgument, "Only the tests of the media can be run again"};
    }
    if (!device.IsNetworked()) {
        return Failure{kInvalidArgument, "This device has no tests of media"};
    }
    auto next = device.State();
    RunMediaTests(next, mask);
    return device.Change(std::move(next));
}

}
