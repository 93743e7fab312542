#pragma once

#include "tests/support/RoomFixture.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace support {

// The calls of a refresh, in order and in pieces, as a call recorder names them.

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

inline const Shown kNotNormalWarning = WarningBox(
    "The Programming Device is not in Normal mode and therefore some information about the "
    "Programming Device can be incorrect.\n\nThis can be a result of invalid or broken software of "
    "the Programming Device. Please, update the Programming Device",
    "Prommer Maintenance");

inline simulator::DeviceDescription DeviceInMode(std::int32_t type, std::int32_t mode) {
    simulator::DeviceDescription device = HealthyDevice(type);
    device.mode = mode;
    return device;
}

/// Refreshes as a connected device brings them about.
class RefreshFixture : public PanelFixture {
protected:
    void SetUp() override { StartPanel(); }

    /// Runs inside the `call`-th call of the operation, before it is made.
    void Inside(const std::string& operation, std::function<void()> action, std::size_t call = 1) {
        faults->RunBefore({call, operation}, std::move(action));
    }

    /// Fields 211 to 219 and 244.
    std::vector<std::string> Fields() {
        std::vector<std::string> fields;
        for (const panel::ControlId id : {211, 212, 213, 214, 215, 216, 217, 218, 219, 244}) {
            fields.push_back(Field(id));
        }
        return fields;
    }
};

}
