#pragma once

#include "component/win32/com/ComApi.h"

#include <filesystem>
#include <optional>

/// The component as the build has made it, seen from outside.
namespace component {

inline constexpr wchar_t kComponentName[] = L"cmn_krx8maintenanceui.dll";
inline constexpr CLSID kClass = {
    0x235783FE, 0x1F74, 0x487E, {0x85, 0x61, 0x9E, 0x89, 0x00, 0x47, 0x92, 0x7A}};
inline constexpr GUID kLibrary = {
    0x315D7CB4, 0xB70F, 0x454D, {0x85, 0x20, 0xD7, 0x6B, 0xBC, 0xAB, 0x99, 0xAD}};
inline constexpr wchar_t kClassKey[] = L"CLSID\\{235783FE-1F74-487E-8561-9E890047927A}";
inline constexpr wchar_t kLibraryKey[] = L"TypeLib\\{315D7CB4-B70F-454D-8520-D76BBCAB99AD}";

/// The folder of this program.
std::filesystem::path OwnFolder();
/// The component's full path.
std::filesystem::path ComponentFile();

/// Registers it, or another copy of it, as an administrator does; the status of regsvr32, 0 for a
/// success, nothing when that could not be run.
std::optional<unsigned long> RunRegsvr32(const std::filesystem::path& file = ComponentFile());
std::optional<unsigned long>
RunRegsvr32ToUnregister(const std::filesystem::path& file = ComponentFile());

/// Takes everything that a registration writes out of the registry, categories included.
void ForgetRegistration();

/// Handles messages and has COM unload what it no longer needs until the component has left this
/// process; false when it does not within five seconds.
bool AwaitUnloading();

}
