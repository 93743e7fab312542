#include "fuzz/panel/WorkshopDevice.h"

#include "fuzz/support/Require.h"
#include "tests/support/SampleDevices.h"

#include <utility>

namespace fuzz {

namespace {

using simulator::DeviceDescription;
using simulator::StoredFile;

constexpr int kModels = 7; // one below the known ones and one above
constexpr int kModes = 3;
constexpr int kFiles = 7;

/// Different in type, place, generation and address; one has no name, one is the package's version.
StoredFile MakeFile(int number) {
    constexpr const char* kNames[kFiles] = {"alpha.fia", "",          "Version.FIA",
                                            "omega.bin", "alpha.fia", "\xC3\xA9t\xC3\xA9.fg",
                                            "zeta.fia"};
    constexpr std::int32_t kTypes[kFiles] = {19, 21, 22, 255, 21, 22, -1};
    constexpr std::int32_t kLocations[kFiles] = {1, 2, 1, 3, 2, 1, 4};
    StoredFile file = support::File(kNames[number], kTypes[number], 70000 + number);
    file.location = kLocations[number];
    file.generation = static_cast<std::uint32_t>(number);
    return file;
}

void ToggleFile(DeviceDescription& device, int number) {
    const std::size_t before = device.files.size();
    std::erase_if(device.files, [&](const StoredFile& file) { return file.id == 70000 + number; });
    if (device.files.size() == before) {
        device.files.push_back(MakeFile(number));
    }
}

}

DeviceDescription MakeDevice(CInput& input) {
    const int kind = input.Below(kModels * kModes);
    DeviceDescription device = support::HealthyDevice(kind % kModels);
    device.mode = 1 + kind / kModels;
    device.files.clear();
    const unsigned files = input.Byte();
    for (int number = 0; number < kFiles; ++number) {
        if ((files >> number & 1) != 0) {
            device.files.push_back(MakeFile(number));
        }
    }
    if ((files >> kFiles & 1) != 0) {
        device.pcCard = simulator::PcCard{100000};
        device.selfTests[contract::SelfTest::Rs232] = 814;
    }
    return device;
}

void Alter(simulator::CDevice& device, CInput& input) {
    DeviceDescription next = device.State();
    switch (input.Below(4)) {
    case 0:
        ToggleFile(next, input.Below(kFiles));
        break;
    case 1:
        next.selfTests[static_cast<contract::SelfTest>(1 + input.Below(21))] = input.Below(2);
        break;
    case 2:
        next.pcCard = next.pcCard ? std::nullopt : std::optional(simulator::PcCard{1000});
        break;
    default:
        next.software.boot = std::string(input.Byte(), 'v');
    }
    Require(!device.Change(std::move(next)), "a device in memory can be changed");
}

}
