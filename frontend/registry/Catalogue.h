#pragma once

#include "contract/Guid.h"

#include <string>
#include <variant>

namespace registry {

/// What stands for HKEY_CLASSES_ROOT in the machine's settings file: as on Windows, a part of the
/// key that all programs share. `path` has backslashes between the keys; the result is a name in
/// the file.
std::string CatalogueKey(const std::string& path);

/// Where a component is.
struct CatalogueEntry {
    contract::Guid classIdentifier;
    std::string library;
};

/// Finds a component by its program identifier, with or without a version. Where there is none, the
/// answer is a sentence for the user that names `file` and what is missing in it.
std::variant<CatalogueEntry, std::string> FindComponent(const std::string& file,
                                                        const std::string& programIdentifier);

}
