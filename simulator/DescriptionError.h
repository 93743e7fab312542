#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace simulator {

/// Why a folder could not be opened as a device.
struct DescriptionError {
    /// The file at fault, or the folder when it is the folder itself.
    std::filesystem::path file;
    /// Line in the file, from 1; 0 when the file as a whole is at fault.
    std::size_t line = 0;
    /// In English, without a full stop, on one line.
    std::string reason;

    /// One line for the user, whatever the file is called: "file:line: reason".
    std::string Message() const;
};

}
