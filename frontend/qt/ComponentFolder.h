#pragma once

#include <string>

namespace qt {

/// The library or program that contains this code, links followed; empty when the system does not
/// tell.
std::string FindComponentFile();

/// Its folder, without a trailing separator; empty when the system does not tell.
std::string FindComponentFolder();

}
