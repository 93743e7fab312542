#pragma once

#include "contract/Guid.h"
#include "contract/host/MessageService.h"

#include <memory>
#include <sstream>
#include <string>
#include <type_traits>

/// Values of the contract's types to send through an operation, and their picture as text.
namespace interception {

/// Seeds below this one stand for values that were there before, from it on for delivered ones.
inline constexpr int kDeliveredSeed = 100;

inline contract::Message SampleMessage(int seed) {
    contract::Message message;
    message.text = "text " + std::to_string(seed);
    message.caption = "caption " + std::to_string(seed);
    return message;
}

/// A value that tells its seed.
template <class T>
T Sample(int seed) {
    if constexpr (std::is_same_v<T, bool>) {
        return seed >= kDeliveredSeed;
    } else if constexpr (std::is_same_v<T, std::string>) {
        return "text " + std::to_string(seed);
    } else if constexpr (std::is_same_v<T, contract::Guid>) {
        return {static_cast<std::uint32_t>(seed), 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
    } else if constexpr (std::is_same_v<T, contract::Message>) {
        return SampleMessage(seed);
    } else {
        return static_cast<T>(seed);
    }
}

template <class T>
std::string Describe(const T& value) {
    std::ostringstream text;
    if constexpr (std::is_same_v<T, contract::Guid>) {
        text << value.data1;
    } else if constexpr (std::is_same_v<T, contract::Message>) {
        text << value.text << '/' << value.caption;
    } else if constexpr (std::is_same_v<T, contract::Status>) {
        text << value.Code();
    } else if constexpr (std::is_enum_v<T>) {
        text << static_cast<std::underlying_type_t<T>>(value);
    } else {
        text << value;
    }
    return text.str() + ";";
}

}
