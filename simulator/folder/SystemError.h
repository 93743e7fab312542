#pragma once

#include <string>
#include <system_error>

namespace simulator {

/// What an error of the system means, as a part of a message: "Permission denied". UTF-8, on one
/// line, the same words on every system that has such an error.
std::string MessageOf(const std::error_code& error);

}
