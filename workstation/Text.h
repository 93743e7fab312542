#pragma once

#include <QString>

#include <filesystem>
#include <string>
#include <string_view>

/// Texts for the user, made from what the workstation handles.
namespace workstation {

/// The name of a device: that of its folder.
QString NameOf(const std::filesystem::path& folder);

/// "ProgrammingDeviceControl.GetFileListing" becomes "Get file listing".
std::string DescribeOperation(std::string_view operation);

/// What the user reads of a text with mnemonics: "&" is left out, "&&" becomes "&".
std::string WithoutMnemonic(const QString& text);

}
