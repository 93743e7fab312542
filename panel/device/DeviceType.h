#pragma once

#include <cstdint>

namespace panel {

/// Model of a device as it reports it. Any other value is an unknown device and is kept.
enum class DeviceType : std::int32_t { Krx8 = 1, Krx8C = 2, Krx10 = 3, Krx20 = 4, Krx21 = 5 };

/// KRX-8 and KRX-8C.
constexpr bool IsKrx8Family(DeviceType type) {
    return type == DeviceType::Krx8 || type == DeviceType::Krx8C;
}

/// The models with a network interface; an unknown device is not one of them.
constexpr bool IsNetworked(DeviceType type) {
    return type >= DeviceType::Krx10 && type <= DeviceType::Krx21;
}

constexpr bool IsKnown(DeviceType type) {
    return type >= DeviceType::Krx8 && type <= DeviceType::Krx21;
}

}
