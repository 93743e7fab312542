#pragma once

#include "simulator/DeviceDescription.h"

#include <filesystem>
#include <map>
#include <string>

namespace simulator {

/// All that a device folder holds, but for the names under which the bytes of files are kept: these
/// depend on what an earlier writer left behind.
struct DeviceSnapshot {
    /// Without files.
    DeviceDescription device;
    /// In the order of the list; their `content` is empty.
    std::vector<StoredFile> files;
    std::map<std::string, std::string> bytesByName;

    bool operator==(const DeviceSnapshot&) const = default;

    /// Whether `name` is there as it is in `other`, byte for byte, or absent from both.
    bool HasSameFile(const DeviceSnapshot& other, const std::string& name) const;
};

/// Reads the folder as an opening of the device does. Fails the test when it is refused.
DeviceSnapshot TakeSnapshot(const std::filesystem::path& folder);

/// Whether files lie in the folder that its description does not name.
bool HoldsLeftovers(const std::filesystem::path& folder);

}
