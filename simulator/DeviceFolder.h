#pragma once

#include "simulator/DescriptionError.h"
#include "simulator/DeviceDescription.h"

#include <filesystem>
#include <memory>
#include <variant>
#include <vector>

/// Devices as folders: a description `device.json` and the stored files in `files`. The format is
/// described in docs/device-folder.md.
namespace simulator {

class CDevice;

/// Reads the description of the device in `folder`, with the sizes of its stored files. Refuses a
/// description that is wrong in any way: the first error found is returned. Writes nothing.
std::variant<DeviceDescription, DescriptionError>
ReadDeviceFolder(const std::filesystem::path& folder);

/// The device in `folder`, or why there is none. Opening writes nothing; what happens to the device
/// afterwards is kept in the folder, which survives the end of the process at any instant. A folder
/// is for one device at a time: a second one that is opened on it sees no change of the first and
/// can make none after it.
std::variant<std::shared_ptr<CDevice>, DescriptionError>
OpenDevice(const std::filesystem::path& folder);

/// The folders directly under `root` that hold a `device.json`, good or bad, sorted by name. None
/// when `root` cannot be read.
std::vector<std::filesystem::path> ListDevices(const std::filesystem::path& root);

}
