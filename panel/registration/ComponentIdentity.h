#pragma once

#include "contract/Guid.h"

#include <cstdint>

/// The names by which hosts find the component. Fixed for ever: hosts have them built in.
namespace panel {

/// The one class that hosts can create.
inline constexpr contract::Guid kMaintenanceClass{
    0x235783FE, 0x1F74, 0x487E, {0x85, 0x61, 0x9E, 0x89, 0x00, 0x47, 0x92, 0x7A}};
/// The type library, version 1.0.
inline constexpr contract::Guid kTypeLibrary{
    0x315D7CB4, 0xB70F, 0x454D, {0x85, 0x20, 0xD7, 0x6B, 0xBC, 0xAB, 0x99, 0xAD}};
inline constexpr std::uint16_t kTypeLibraryMajorVersion = 1;
inline constexpr std::uint16_t kTypeLibraryMinorVersion = 0;

/// The program identifier, whatever the version.
inline constexpr char kProgramIdentifier[] = "QRZ.KRX8Maintenance";

/// The name of the class for users, as the registry says too.
inline constexpr char kUserType[] = "KRX8Maintenance Class";

/// How a container is to treat the control, as the registry says too (bits of OLEMISC in oleidl.h):
/// recompose on resize, cannot be linked inside, inside out, activate when visible, set the client
/// site first.
inline constexpr std::uint32_t kMiscStatus = 131473;

}
