#pragma once

#include <string>

namespace qt {

/// The folder of the library or program that contains this code, without a trailing separator;
/// empty when the system does not tell.
std::string FindComponentFolder();

}
