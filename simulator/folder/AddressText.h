#pragma once

#include "contract/device/Krx10CommunicationConfiguration.h"

#include <optional>
#include <string>
#include <string_view>

namespace simulator {

/// The address of a dotted text, four decimal numbers from 0 to 255 without signs, blanks or more
/// than three digits; none for any other text.
std::optional<contract::AddressValue> ParseAddress(std::string_view text);

/// The dotted text of an address.
std::string AddressText(contract::AddressValue address);

}
