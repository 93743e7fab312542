#pragma once

#include "contract/Status.h"
#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/SelfTestResults.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// Everything that a simulated device is made of, as plain data.
///
/// A device folder is read into it (simulator/DeviceFolder.h); tests fill it by hand. Nothing here
/// is checked against what real devices have: a type of 9, an absent text or a million files are
/// how a test makes a device behave oddly. Texts are UTF-8, an absent text is an empty one.
namespace simulator {

inline constexpr std::int32_t kKrx8 = 1;
inline constexpr std::int32_t kKrx8c = 2;
inline constexpr std::int32_t kKrx10 = 3;
inline constexpr std::int32_t kKrx20 = 4;
inline constexpr std::int32_t kKrx21 = 5;

inline constexpr std::int32_t kNormalMode = 1;
inline constexpr std::int32_t kServiceMode = 2;
inline constexpr std::int32_t kMaintenanceMode = 3;

inline constexpr std::int32_t kSecondaryBoot = 19;
inline constexpr std::int32_t kAlgorithm = 21;
inline constexpr std::int32_t kMcuSoftware = 22;
/// What the device makes of a file that is none of these. Not 0, which stands for "any type".
inline constexpr std::int32_t kUnknownFileType = 255;

inline constexpr std::int32_t kInRam = 1;
inline constexpr std::int32_t kInFlash = 2;
inline constexpr std::int32_t kOnPcCard = 3;

inline constexpr std::uint32_t kGenerationQx3 = 5;

inline constexpr std::int32_t kTestOk = 0;
inline constexpr std::int32_t kTestIgnored = 2;
/// The result of a self-test that a device does not have, or has not run since a change.
inline constexpr std::int32_t kTestNotRun = 787;
inline constexpr std::int32_t kTestFileMissing = 788;
inline constexpr std::int32_t kTestMediaNotFound = 812;

/// The file whose version is that of the software package on the device.
inline constexpr const char* kVersionFileName = "version.fia";

/// The part of a file's identifier that addresses it, together with its type: the low 16 bits.
constexpr std::int32_t AddressingPart(std::int32_t id) { return id & 0xFFFF; }

/// One file on the device.
struct StoredFile {
    std::string name;
    std::int32_t type = 0;
    std::int32_t id = 0;
    std::string version;
    std::int32_t sizeBytes = 0;
    std::int32_t location = kInFlash;
    std::uint32_t generation = 0;
    /// Name of the file in the folder `files` that holds its bytes; empty for a device that lives
    /// in memory only.
    std::string content;

    bool operator==(const StoredFile&) const = default;
};

struct SoftwareVersions {
    std::string boot;
    std::string application;
    std::string fpgaCode;
    std::string security;
    std::string fpgaDriver;
    std::string mmcrDriver;
    std::string usbDeviceFunctionDriver;
    std::string usbHostControllerDriver;
    std::string bootLoader;
    std::string serviceFpga;

    bool operator==(const SoftwareVersions&) const = default;
};

struct NetworkSettings {
    /// Dotted text of the address in force, and the address as set: kAddressByDhcp when it was
    /// obtained by DHCP. Two values because a device may have the one without the other.
    std::string ipAddress;
    contract::AddressValue ipAddressValue = 0;
    contract::AddressValue subnetMask = 0;
    contract::AddressValue gateway = 0;
    bool useDhcp = false;
    std::string description;
    std::string macAddress;

    bool operator==(const NetworkSettings&) const = default;
};

struct PcCard {
    std::uint32_t totalBytes = 0;

    bool operator==(const PcCard&) const = default;
};

/// Makes one call of an operation go wrong. Operations are named as in interception/Operations.h.
struct Fault {
    std::string operation;
    /// Which call of the operation, from 1, counted from the insertion of the device in its host.
    std::uint32_t call = 1;
    /// The operation succeeds with a null object; status and description are then unused.
    bool succeedsWithNull = false;
    contract::Status status = contract::kUnspecifiedFailure;
    std::string description;

    bool operator==(const Fault&) const = default;
};

/// How long the device's operations take, in milliseconds, on top of the computing.
struct Latency {
    std::uint32_t defaultMs = 0;
    std::map<std::string, std::uint32_t> operationsMs;

    bool operator==(const Latency&) const = default;
};

/// Takes the device out of its host inside one call.
struct DeviceLoss {
    std::string operation;
    std::uint32_t call = 1;
    /// The device is back after so many further calls of any operation; none: only on request.
    std::optional<std::uint32_t> returnsAfterCalls;

    bool operator==(const DeviceLoss&) const = default;
};

struct DeviceDescription {
    std::int32_t type = kKrx20;
    /// The mode in which the device is when it is opened.
    std::int32_t mode = kNormalMode;
    std::int32_t serialNumber = 0;
    std::string hardwareVersion;
    std::uint32_t totalRamBytes = 0;
    std::uint32_t totalFlashBytes = 0;
    SoftwareVersions software;
    /// Results by test; a test that is absent is kTestNotRun.
    std::map<contract::SelfTest, std::int32_t> selfTests;
    NetworkSettings network;
    std::optional<PcCard> pcCard;
    /// In the order in which the device lists them.
    std::vector<StoredFile> files;
    std::vector<Fault> faults;
    Latency latency;
    std::optional<DeviceLoss> loss;

    bool operator==(const DeviceDescription&) const = default;
};

}
