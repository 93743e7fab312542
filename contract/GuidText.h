#pragma once

#include "contract/Guid.h"

#include <optional>
#include <string>
#include <string_view>

namespace contract {

/// As registries write identifiers: "{235783FE-1F74-487E-8561-9E890047927A}".
std::string FormatGuid(const Guid& guid);

/// Reads that form, letters of either case; nothing for any other text.
std::optional<Guid> ParseGuid(std::string_view text);

}
