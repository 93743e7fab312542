#pragma once

#include "component/win32/com/ComApi.h"
#include "contract/Guid.h"

namespace component {

GUID ToGuid(const contract::Guid& identifier);
contract::Guid FromGuid(const GUID& identifier);

}
