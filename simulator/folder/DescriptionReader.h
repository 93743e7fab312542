#pragma once

#include "simulator/DeviceDescription.h"
#include "simulator/folder/DescriptionNode.h"

#include <filesystem>

namespace simulator {

/// Reads a whole description, with the sizes of the files that `folder` stores. Throws a
/// DescriptionError.
DeviceDescription ReadDescription(const CDescriptionNode& root,
                                  const std::filesystem::path& folder);

}
