#pragma once

#include "simulator/DeviceDescription.h"
#include "simulator/folder/NamedValue.h"

#include <string>
#include <string_view>
#include <utility>

/// What descriptions call things, for reading and writing alike.
namespace simulator {

inline constexpr const char* kDescriptionName = "device.json";
inline constexpr const char* kContentFolderName = "files";

inline constexpr NamedValue kModels[] = {{"KRX-8", kKrx8},
                                         {"KRX-8C", kKrx8c},
                                         {"KRX-10", kKrx10},
                                         {"KRX-20", kKrx20},
                                         {"KRX-21", kKrx21}};

inline constexpr NamedValue kModes[] = {
    {"Normal", kNormalMode}, {"Service", kServiceMode}, {"Maintenance", kMaintenanceMode}};

inline constexpr std::pair<std::string_view, contract::SelfTest> kSelfTests[] = {
    {"fpgaCode", contract::SelfTest::FpgaCode},
    {"fpgaLoad", contract::SelfTest::FpgaLoad},
    {"applicationSw", contract::SelfTest::ApplicationSw},
    {"bootCode", contract::SelfTest::BootCode},
    {"ram", contract::SelfTest::Ram},
    {"externalRam", contract::SelfTest::ExternalRam},
    {"externalFlash", contract::SelfTest::ExternalFlash},
    {"pagedFlash", contract::SelfTest::PagedFlash},
    {"eeprom", contract::SelfTest::Eeprom},
    {"secondaryAndAlgorithmFiles", contract::SelfTest::SecondaryAndAlgorithmFiles},
    {"mcusw", contract::SelfTest::Mcusw},
    {"flash", contract::SelfTest::Flash},
    {"pagedRam", contract::SelfTest::PagedRam},
    {"mmcrDriver", contract::SelfTest::MmcrDriver},
    {"usbDeviceFunction", contract::SelfTest::UsbDeviceFunction},
    {"usbHostController", contract::SelfTest::UsbHostController},
    {"ztwcdcDriver", contract::SelfTest::ZtwcdcDriver},
    {"ethernet", contract::SelfTest::Ethernet},
    {"usb", contract::SelfTest::Usb},
    {"rs232", contract::SelfTest::Rs232},
    {"fpga", contract::SelfTest::Fpga},
};

inline constexpr NamedValue kTestResults[] = {
    {"ok", kTestOk},
    {"failed", 1},
    {"ignored", kTestIgnored},
    {"notRun", kTestNotRun},
    {"fileMissing", kTestFileMissing},
    {"fileInvalid", 789},
    {"certificateMissing", 790},
    {"certificateInvalid", 791},
    {"authenticationFailed", 792},
    {"flashNotFound", 793},
    {"flashNotUsable", 794},
    {"driverFailed", 795},
    {"publicKeyFailed", 809},
    {"mediaNotFound", kTestMediaNotFound},
    {"mediaNotSupported", 813},
    {"mediaNotUsable", 814},
};

inline constexpr std::pair<const char*, std::string SoftwareVersions::*> kSoftwareVersions[] = {
    {"boot", &SoftwareVersions::boot},
    {"application", &SoftwareVersions::application},
    {"fpgaCode", &SoftwareVersions::fpgaCode},
    {"security", &SoftwareVersions::security},
    {"fpgaDriver", &SoftwareVersions::fpgaDriver},
    {"mmcrDriver", &SoftwareVersions::mmcrDriver},
    {"usbDeviceFunctionDriver", &SoftwareVersions::usbDeviceFunctionDriver},
    {"usbHostControllerDriver", &SoftwareVersions::usbHostControllerDriver},
    {"bootLoader", &SoftwareVersions::bootLoader},
    {"serviceFpga", &SoftwareVersions::serviceFpga},
};

inline constexpr NamedValue kFileTypes[] = {
    {"secondaryBoot", kSecondaryBoot}, {"algorithm", kAlgorithm}, {"mcuSoftware", kMcuSoftware}};
inline constexpr NamedValue kLocations[] = {
    {"RAM", kInRam}, {"Flash", kInFlash}, {"PCCard", kOnPcCard}};
inline constexpr NamedValue kGenerations[] = {
    {"none", 0}, {"QX1", 3}, {"QX2", 4}, {"QX3", kGenerationQx3}};

}
