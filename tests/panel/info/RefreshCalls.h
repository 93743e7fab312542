#pragma once

#include <initializer_list>
#include <string>
#include <vector>

/// The calls of a refresh, in order and in pieces, as a call recorder names them.
namespace support {

using Calls = std::vector<std::string>;

inline Calls Join(std::initializer_list<Calls> parts) {
    Calls all;
    for (const Calls& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

inline Calls Repeat(int times, const Calls& part) {
    Calls all;
    for (int i = 0; i < times; ++i) {
        all = Join({all, part});
    }
    return all;
}

inline const Calls kTypeCalls = {"ProgrammingDeviceControl.GetHardwareInfo",
                                 "HardwareInfo.GetDeviceType"};
inline const Calls kSelfTestCalls = Join(
    {{"ProgrammingDeviceControl.GetSelfTestResults"}, Repeat(21, {"SelfTestResults.GetResult"})});
inline const Calls kModeCalls = {"ProgrammingDeviceControl.RequestMode"};
inline const Calls kInformationCalls = {"ProgrammingDeviceControl.GetSoftwareInfo",
                                        "ProgrammingDeviceControl.GetHardwareInfo",
                                        "SoftwareInfo.GetBootSwVersion",
                                        "SoftwareInfo.GetApplicationSwVersion",
                                        "SoftwareInfo.GetFpgaCodeVersion",
                                        "HardwareInfo.GetHardwareVersion",
                                        "HardwareInfo.GetTotalRamSize",
                                        "HardwareInfo.GetTotalFlashSize"};
inline const Calls kFreeMemoryCalls = {"ProgrammingDeviceControl.GetFreeResources",
                                       "FreeResources.GetFreeRamSize",
                                       "FreeResources.GetFreeFlashSize"};
inline const Calls kSerialNumberCalls = {"HardwareInfo.GetSerialNumber"};
inline const Calls kNetworkCalls = {
    "ProgrammingDeviceSubsystem.GetKrx10Control",
    "Krx10Control.GetCommunicationConfiguration",
    "Krx10CommunicationConfiguration.QueryCommunicationConfiguration2",
    "Krx10CommunicationConfiguration2.GetIpAddress",
    "Krx10CommunicationConfiguration2.GetIpAddressValue",
    "Krx10CommunicationConfiguration2.GetSubnetMask",
    "Krx10CommunicationConfiguration2.GetGateway",
    "Krx10CommunicationConfiguration2.GetUseDhcp",
    "Krx10CommunicationConfiguration2.GetDescription",
    "Krx10CommunicationConfiguration2.GetMacAddress"};
inline const Calls kOneFileCalls = {"FileListing.GetFileInfo", "FileInfo.GetName",
                                    "FileInfo.GetType",        "FileInfo.GetId",
                                    "FileInfo.GetVersion",     "FileInfo.GetSize",
                                    "FileInfo.GetLocation",    "FileInfo.GetGeneration"};
inline const Calls kListingCalls =
    Join({{"ProgrammingDeviceControl.GetFileListing", "FileListing.GetFileCount"},
          Repeat(3, kOneFileCalls)});
inline const Calls kBoxCalls = {"Context.QueryMessageService", "MessageService.ShowMessage"};

}
