#include "component/win32/com/Identifiers.h"

#include "frontend/win32/Text.h"

#include <algorithm>

namespace component {

namespace {

constexpr int kTextLength = 38;

}

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

std::string IdentifierText(const contract::Guid& identifier) {
    OLECHAR text[kTextLength + 1] = {};
    StringFromGUID2(ToGuid(identifier), text, kTextLength + 1);
    return win32::FromWide({text, kTextLength});
}

std::optional<contract::Guid> ReadIdentifier(BSTR text) {
    // The length is looked at since a text may go on after a null character. Not CLSIDFromString,
    // which takes the names of registered classes too.
    IID identifier;
    if (SysStringLen(text) != kTextLength || FAILED(IIDFromString(text, &identifier))) {
        return std::nullopt;
    }
    return FromGuid(identifier);
}

}
