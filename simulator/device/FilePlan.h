#pragma once

#include "simulator/DeviceDescription.h"
#include "simulator/Failure.h"
#include "simulator/device/PhoneFile.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

/// Decisions about the files of a device, as functions of what the device holds (handed over, and
/// given back changed).
namespace simulator {

/// Where an upload goes, as the service's operations number it.
enum class Destination : std::int32_t { Default = 0, Ram = 1, Flash = 2, ExternalStorage = 3 };

/// How an upload goes.
enum class UploadMethod : std::int32_t { Default = 0, Force = 1, Version = 2, Flashing = 3 };

struct StorePlan {
    /// What the device holds afterwards.
    DeviceDescription next;
    /// Index of the file in it.
    std::size_t file = 0;
    /// The device has this version or a newer one already, and keeps it.
    bool isUpToDate = false;
};

/// Whether the model is of the KRX-8 family.
bool IsKrx8Family(std::int32_t type);

/// kNotReady unless the device takes file operations now: in Normal mode, or in any mode on the
/// KRX-8 family, which has a boot loader for them.
Outcome ExpectFileMode(std::int32_t type, std::int32_t mode);

/// kNotReady for a memory card that is not there, kMemoryFull with the sizes when `sizeBytes` more
/// do not fit at the location.
Outcome ExpectRoom(const DeviceDescription& device, const std::string& name, std::int64_t sizeBytes,
                   std::int32_t location);

/// Stores a file: in place of the one of the same name and type, else behind the last.
std::variant<StorePlan, Failure> PlanStore(DeviceDescription device, const PhoneFile& file,
                                           Destination destination, UploadMethod method);

/// Moves a file to another memory. Type 0 stands for any type: the first file of that identifier
/// (low 16 bits) that is not there yet. A file that is there stays.
std::variant<DeviceDescription, Failure> PlanMove(DeviceDescription device, std::int32_t type,
                                                  std::int32_t id, Destination destination);

/// Deletes a file; type 0 with identifier 0: every file.
std::variant<DeviceDescription, Failure> PlanDelete(DeviceDescription device, std::int32_t type,
                                                    std::int32_t id);

}
