#pragma once

#include "simulator/Failure.h"
#include "simulator/device/FilePlan.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace simulator {

/// A file that an update loads.
struct UpdateEntry {
    enum class Kind { PhoneFile, Fpga, Application, Image };

    Kind kind = Kind::PhoneFile;
    /// With "/", inside the description's folder.
    std::string path;
    Destination destination = Destination::Default;
};

/// A software package as one device sees it.
struct UpdateDescription {
    std::string name;
    std::string version;
    /// Those of the package for this model, in their order.
    std::vector<UpdateEntry> entries;
};

/// Reads the INI description of a package (docs/update-description.md) for a device of a type. A
/// description with a mistake anywhere is refused as a whole: file, line and reason.
std::variant<UpdateDescription, Failure> ReadUpdateDescription(const std::filesystem::path& file,
                                                               std::int32_t deviceType);

}
