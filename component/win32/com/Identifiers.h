#pragma once

#include "component/win32/com/ComApi.h"
#include "contract/Guid.h"

#include <optional>
#include <string>

namespace component {

GUID ToGuid(const contract::Guid& identifier);
contract::Guid FromGuid(const GUID& identifier);

/// As registries write it: "{492DA5B7-AE9B-4AB6-962A-5637D9563537}".
std::string IdentifierText(const contract::Guid& identifier);
/// Reads that form, letters of either case; nothing for null and any other text.
std::optional<contract::Guid> ReadIdentifier(BSTR text);

}
