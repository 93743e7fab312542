#pragma once

#include "simulator/DeviceDescription.h"
#include "simulator/folder/DescriptionNode.h"

#include <filesystem>
#include <vector>

namespace simulator {

/// Reads the list `files` of a description. The sizes are those of the files in `folder` that hold
/// the bytes. Throws a DescriptionError.
std::vector<StoredFile> ReadStoredFiles(const CDescriptionNode& list,
                                        const std::filesystem::path& folder);

}
