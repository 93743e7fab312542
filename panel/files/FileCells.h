#pragma once

#include "panel/control/View.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace panel {

/// Columns of the file list, in order.
enum class FileColumn : int { Name, Type, Id, Version, Size, Location, Generation };

std::span<const ListColumn> FileColumns();

/// Kinds of file that the panel knows; other values are shown as unknown.
enum class FileType : std::int32_t { SecondaryBoot = 19, Algorithm = 21, McuSoftware = 22 };

/// Where a file is stored; other values are shown as numbers.
enum class FileLocation : std::int32_t { Ram = 1, Flash = 2, PcCard = 3 };

/// Room for the text of a cell that holds a number: a sign and ten digits.
using CellBuffer = std::array<char, 11>;

/// Texts of cells. A text is a literal or stands in `buffer`; a listing of many files makes none of
/// its own for each cell.
std::string_view FileTypeText(std::int32_t type);
std::string_view FileLocationText(std::int32_t location, CellBuffer& buffer);
/// Empty for 0, the phone platform's name where there is one, else the number.
std::string_view FileGenerationText(std::uint32_t generation, CellBuffer& buffer);
std::string_view NumberText(std::int32_t number, CellBuffer& buffer);

}
