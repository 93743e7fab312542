#pragma once

#include <filesystem>
#include <system_error>

class QPixmap;

namespace workstation {

/// Writes `picture` to `file` as PNG. What is there stays until the picture is whole, and for good
/// after an error; a link is followed. Only a plain file is replaced: errc::not_supported for
/// anything else but a folder (errc::is_a_directory).
std::error_code WritePictureFile(const QPixmap& picture, const std::filesystem::path& file);

}
