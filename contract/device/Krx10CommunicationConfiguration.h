#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <memory>
#include <string>

namespace contract {

class IKrx10CommunicationConfiguration2;

/// The network configuration of a device, as first published; it only leads to its successor. One
/// call at a time, on the thread of the call (see ProgrammingDeviceControl.h).
class IKrx10CommunicationConfiguration {
public:
    virtual ~IKrx10CommunicationConfiguration() = default;

    /// Asks for the complete interface. kNoSuchInterface from devices that predate it.
    virtual Status QueryCommunicationConfiguration2(
        std::shared_ptr<IKrx10CommunicationConfiguration2>& configuration) = 0;
};

/// An IPv4 address as a number holds its four bytes in memory order, first byte at the lowest
/// address: on a little-endian machine 192.168.0.1 is 0x0100A8C0.
using AddressValue = std::uint32_t;

/// 255.255.255.255: the address is obtained by DHCP.
inline constexpr AddressValue kAddressByDhcp = 0xFFFFFFFF;

/// The complete network configuration. The object is a working copy: setters change the copy, and
/// ApplyConfiguration writes it to the device. One call at a time, on the thread of the call (see
/// ProgrammingDeviceControl.h); results are untouched on failure.
class IKrx10CommunicationConfiguration2 {
public:
    virtual ~IKrx10CommunicationConfiguration2() = default;

    /// Dotted text of the address in force, UTF-8; empty when the interface has none.
    virtual Status GetIpAddress(std::string& text) = 0;
    virtual Status GetIpAddressValue(AddressValue& address) = 0;
    virtual Status GetSubnetMask(AddressValue& mask) = 0;
    virtual Status GetGateway(AddressValue& gateway) = 0;
    virtual Status GetUseDhcp(bool& useDhcp) = 0;
    /// The name that a service point gave the device, UTF-8, meant to be at most 110
    /// characters, of which those beyond U+FFFF count as two.
    virtual Status GetDescription(std::string& description) = 0;
    /// Hardware address of the Ethernet interface as text.
    virtual Status GetMacAddress(std::string& text) = 0;

    /// kAddressByDhcp together with SetDhcp(true) hands addressing to DHCP.
    virtual Status SetIpAddress(AddressValue address) = 0;
    virtual Status SetDhcp(bool useDhcp) = 0;
    virtual Status SetSubnetMask(AddressValue mask) = 0;
    virtual Status SetGateway(AddressValue gateway) = 0;
    /// UTF-8, at most 110 characters from this panel, counted likewise.
    virtual Status SetDescription(const std::string& description) = 0;
    /// Writes the copy to the device; all of it or nothing.
    virtual Status ApplyConfiguration() = 0;
};

}
