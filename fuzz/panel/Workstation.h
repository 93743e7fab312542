#pragma once

#include <string>
#include <vector>

namespace fuzz {

/// The key of the update settings.
inline constexpr const char* kSettingsKey =
    R"(SOFTWARE\Vantor Mobile Phones\WstShared\Common\FlashUpdate)";

/// The folder of an update package in version 3.0.1, good for the KRX-8 family and in part for the
/// other models. Made at first use, removed at the end of the process.
const std::string& PackageFolder();

/// Paths that a user may choose, good and bad: updates, phone files, code and images, a file that
/// is empty and one that is not there, none at all, one that is too long.
const std::vector<std::string>& PathsToChoose();

}
