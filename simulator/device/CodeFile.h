#pragma once

#include "simulator/DeviceDescription.h"
#include "simulator/Failure.h"
#include "simulator/device/SourceFile.h"

#include <cstdint>
#include <string>
#include <variant>

namespace simulator {

/// What UploadCode can load, by its numbers.
enum class CodeKind : std::int32_t { Image = -1, Fpga = 0, Application = 1 };

/// The versions that a code file brings; one it does not bring is empty.
struct CodeVersions {
    std::string application;
    std::string fpga;
    std::string boot;
};

/// What a code file is, by its header and its name, as docs/device-folder.md says ("Code and
/// images"), or why it is not for this device. A file that is larger than the
/// device's flash memory is for none.
std::variant<CodeVersions, Failure> RecogniseCode(const CSourceFile& source, CodeKind kind,
                                                  const DeviceDescription& device);

/// Puts the versions into the device; the self-tests of what was loaded pass. Application software
/// is what a device in Service mode waits for: it starts in Normal mode from then on.
void InstallCode(DeviceDescription& device, const CodeVersions& versions);

}
