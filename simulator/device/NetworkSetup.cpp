#include "simulator/device/NetworkSetup.h"

#include "simulator/folder/AddressText.h"
#include "simulator/folder/Utf8.h"

#include <array>
#include <bit>
#include <cstddef>
#include <string>

namespace simulator {

namespace {

constexpr std::size_t kLongestDescription = 110;

// Where a network says nothing of itself: 192.168.1.0/24.
constexpr std::uint32_t kDefaultNetwork = 0xC0A80100;
constexpr std::uint32_t kDefaultMask = 0xFFFFFF00;

/// An address as a number that counts up from one address to the next; values hold their bytes in
/// memory order instead.
std::uint32_t Ordered(contract::AddressValue address) {
    std::uint32_t ordered = 0;
    for (const auto byte : std::bit_cast<std::array<std::uint8_t, 4>>(address)) {
        ordered = ordered << 8 | byte;
    }
    return ordered;
}

contract::AddressValue ValueOf(std::uint32_t ordered) {
    std::array<std::uint8_t, 4> bytes{};
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        bytes[index] = static_cast<std::uint8_t>(ordered >> (24 - 8 * index));
    }
    return std::bit_cast<contract::AddressValue>(bytes);
}

Failure Refuse(const std::string& reason) { return {kInvalidArgument, reason}; }

bool IsMask(std::uint32_t mask) { return mask != 0 && (~mask & (~mask + 1)) == 0; }

bool IsHost(std::uint32_t address, std::uint32_t mask) {
    const auto host = address & ~mask;
    const auto first = address >> 24;
    const bool isUnicast = first != 0 && first != 127 && first < 224;
    return isUnicast && (~mask < 2 || (host != 0 && host != ~mask));
}

Outcome ExpectFixedAddress(const NetworkSettings& settings) {
    const auto mask = Ordered(settings.subnetMask);
    const auto address = Ordered(settings.ipAddressValue);
    const auto gateway = Ordered(settings.gateway);
    if (!IsMask(mask)) {
        return Refuse(AddressText(settings.subnetMask) + " is not a subnet mask");
    }
    if (!IsHost(address, mask)) {
        return Refuse(AddressText(settings.ipAddressValue) + " is not the address of a device in " +
                      "a network with the mask " + AddressText(settings.subnetMask));
    }
    const bool isReachable = (gateway & mask) == (address & mask) && gateway != address;
    if (gateway != 0 && !isReachable) {
        return Refuse("The gateway " + AddressText(settings.gateway) +
                      " is not another address of the device's network");
    }
    return std::nullopt;
}

/// The same device in the same network gets the same address every time.
contract::AddressValue Lease(const DeviceDescription& device, const NetworkSettings& settings) {
    const auto mask = Ordered(settings.subnetMask);
    const auto gateway = Ordered(settings.gateway);
    const auto network = gateway & mask;
    const auto hosts = ~mask - 1;
    auto host = 100 + static_cast<std::uint32_t>(device.serialNumber) % 100;
    if (hosts != 0 && host > hosts) {
        host = 1 + host % hosts;
    }
    if ((network | host) == gateway) {
        host = host > 1 ? host - 1 : host + 1;
    }
    return ValueOf(network | host);
}

/// What a DHCP server says besides the address. A device that knows its network stays in it.
void CompleteNetwork(NetworkSettings& settings) {
    const auto mask = Ordered(settings.subnetMask);
    const auto gateway = Ordered(settings.gateway);
    if (!IsMask(mask) || ~mask < 7 || !IsHost(gateway, mask)) {
        settings.subnetMask = ValueOf(kDefaultMask);
        settings.gateway = ValueOf(kDefaultNetwork | 1);
    }
}

}

Outcome CompleteNetworkSettings(const DeviceDescription& device, NetworkSettings& settings) {
    if (!IsUtf8(settings.description)) {
        return Failure{kNotUtf8, "The description is not UTF-8"};
    }
    const auto characters = CharactersOf(settings.description);
    if (characters > kLongestDescription) {
        return Refuse("The description has " + std::to_string(characters) +
                      " characters; a device keeps at most 110");
    }
    if (!settings.useDhcp) {
        settings.ipAddress = AddressText(settings.ipAddressValue);
        return ExpectFixedAddress(settings);
    }
    // A lease that is there goes on.
    const bool hasLease = device.network.useDhcp && !device.network.ipAddress.empty();
    settings.ipAddressValue = contract::kAddressByDhcp;
    if (!hasLease) {
        CompleteNetwork(settings);
        settings.ipAddress = AddressText(Lease(device, settings));
    }
    return std::nullopt;
}

}
