#pragma once

#include <string>

namespace sweeps {

/// The file that the user chooses for an upload or an update. Nobody opens it.
inline constexpr const char* kChosenPath = "C:\\new\\OMEGA.BIN";

/// Where the user has the report written; the same for the whole program and for no other one.
const std::string& ReportPath();

/// A file in a folder that there is not.
std::string PathInNoFolder();

}
