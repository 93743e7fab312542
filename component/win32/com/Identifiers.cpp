#include "component/win32/com/Identifiers.h"

#include <algorithm>

namespace component {

GUID ToGuid(const contract::Guid& identifier) {
    GUID guid{identifier.data1, identifier.data2, identifier.data3, {}};
    std::ranges::copy(identifier.data4, guid.Data4);
    return guid;
}

contract::Guid FromGuid(const GUID& identifier) {
    contract::Guid guid{
        static_cast<std::uint32_t>(identifier.Data1), identifier.Data2, identifier.Data3, {}};
    std::ranges::copy(identifier.Data4, guid.data4.begin());
    return guid;
}

}
