#pragma once

#include "panel/control/View.h"

#include <cstdint>
#include <span>
#include <string>

namespace panel {

/// Columns of the file list, in order.
enum class FileColumn : int { Name, Type, Id, Version, Size, Location, Generation };

std::span<const ListColumn> FileColumns();

/// Kinds of file that the panel knows; other values are shown as unknown.
enum class FileType : std::int32_t { SecondaryBoot = 19, Algorithm = 21, McuSoftware = 22 };

/// Where a file is stored; other values are shown as numbers.
enum class FileLocation : std::int32_t { Ram = 1, Flash = 2, PcCard = 3 };

std::string FileTypeText(std::int32_t type);
std::string FileLocationText(std::int32_t location);
/// Empty for 0, the phone platform's name where there is one, else the number.
std::string FileGenerationText(std::uint32_t generation);

}
