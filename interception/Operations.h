#pragma once

#include "interception/Interceptor.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

/// The operations and events of the contract, listed once. The forwarders take their names from
/// here at compile time, so that a name which is not listed cannot be forwarded.
namespace interception {

constexpr auto MakeOperationTable() {
    using enum Delivers;
    using enum Provider;
    return std::to_array<Operation>({
        {"SubsystemAccess.GetSubsystem", Object, Host},
        {"Subsystem.QueryProgrammingDeviceSubsystem", Object, Host},
        {"Subsystem.QueryProductInformation", Object, Host},
        {"ProductInformation.GetProductDetection", Object, Host},
        {"ProductDetection.QueryProductDetectionControl", Object, Host},
        {"ProductDetectionControl.GetPollingEnabled", Value, Host},
        {"ProductDetectionControl.SetPollingEnabled", Nothing, Host},
        {"Connection.QueryConnectionState", Object, Host},
        {"Connection.QueryBaseObject", Object, Host},
        {"ConnectionState.IsConnected", Value, Host},
        {"ExtConnectionEvents.FindEventSource", Object, Host},
        {"ExtConnectionEvents.Subscribe", Value, Host},
        {"ExtConnectionEvents.Unsubscribe", Nothing, Host},
        {"Context.Register", Value, Host},
        {"Context.Unregister", Nothing, Host},
        {"Context.QueryHostViewControl", Object, Host},
        {"Context.QueryMessageService", Object, Host},
        {"HostViewControl.ClosePanel", Nothing, Host},
        {"MessageService.ShowMessage", Value, Host},
        {"ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl", Object, Device},
        {"ProgrammingDeviceSubsystem.GetKrx10Control", Object, Device},
        {"ProgrammingDeviceControl.QueryBaseObject", Object, Device},
        {"ProgrammingDeviceControl.GetHardwareInfo", Object, Device},
        {"ProgrammingDeviceControl.GetSoftwareInfo", Object, Device},
        {"ProgrammingDeviceControl.GetFreeResources", Object, Device},
        {"ProgrammingDeviceControl.GetSelfTestResults", Object, Device},
        {"ProgrammingDeviceControl.GetFileListing", Object, Device},
        {"ProgrammingDeviceControl.GetExternalStorages", Object, Device},
        {"ProgrammingDeviceControl.RequestMode", Nothing, Device},
        {"ProgrammingDeviceControl.UploadPhoneFile", Value, Device},
        {"ProgrammingDeviceControl.MoveFile", Nothing, Device},
        {"ProgrammingDeviceControl.DeleteFile", Nothing, Device},
        {"ProgrammingDeviceControl.UploadCode", Nothing, Device},
        {"ProgrammingDeviceControl.UpdateFromIniFile", Nothing, Device},
        {"ProgrammingDeviceControl.RerunMediaTests", Nothing, Device},
        {"ProgrammingDeviceControlEvents.FindEventSource", Object, Device},
        {"ProgrammingDeviceControlEvents.Subscribe", Value, Device},
        {"ProgrammingDeviceControlEvents.Unsubscribe", Nothing, Device},
        {"HardwareInfo.GetDeviceType", Value, Device},
        {"HardwareInfo.GetHardwareVersion", Value, Device},
        {"HardwareInfo.GetTotalRamSize", Value, Device},
        {"HardwareInfo.GetTotalFlashSize", Value, Device},
        {"HardwareInfo.GetSerialNumber", Value, Device},
        {"SoftwareInfo.GetBootSwVersion", Value, Device},
        {"SoftwareInfo.GetApplicationSwVersion", Value, Device},
        {"SoftwareInfo.GetFpgaCodeVersion", Value, Device},
        {"SoftwareInfo.GetSecuritySwVersion", Value, Device},
        {"SoftwareInfo.GetFpgaDriverVersion", Value, Device},
        {"SoftwareInfo.GetMmcrDriverVersion", Value, Device},
        {"SoftwareInfo.GetUsbDeviceFunctionDriverVersion", Value, Device},
        {"SoftwareInfo.GetUsbHostControllerDriverVersion", Value, Device},
        {"SoftwareInfo.QueryKrx20SwInfo", Object, Device},
        {"Krx20SwInfo.GetTypeInfo", Object, Device},
        {"Krx20SwInfo.GetBootLoaderVersion", Value, Device},
        {"Krx20SwInfo.GetServiceFpgaVersion", Value, Device},
        {"FreeResources.GetFreeRamSize", Value, Device},
        {"FreeResources.GetFreeFlashSize", Value, Device},
        {"SelfTestResults.GetResult", Value, Device},
        {"ExternalStorages.GetCount", Value, Device},
        {"FileListing.GetFileCount", Value, Device},
        {"FileListing.GetFileInfo", Object, Device},
        {"FileInfo.GetName", Value, Device},
        {"FileInfo.GetType", Value, Device},
        {"FileInfo.GetId", Value, Device},
        {"FileInfo.GetVersion", Value, Device},
        {"FileInfo.GetSize", Value, Device},
        {"FileInfo.GetLocation", Value, Device},
        {"FileInfo.GetGeneration", Value, Device},
        {"Krx10Control.GetCommunicationConfiguration", Object, Device},
        {"Krx10Control.PrepareMedia", Nothing, Device},
        {"Krx10CommunicationConfiguration.QueryCommunicationConfiguration2", Object, Device},
        {"Krx10CommunicationConfiguration2.GetIpAddress", Value, Device},
        {"Krx10CommunicationConfiguration2.GetIpAddressValue", Value, Device},
        {"Krx10CommunicationConfiguration2.GetSubnetMask", Value, Device},
        {"Krx10CommunicationConfiguration2.GetGateway", Value, Device},
        {"Krx10CommunicationConfiguration2.GetUseDhcp", Value, Device},
        {"Krx10CommunicationConfiguration2.GetDescription", Value, Device},
        {"Krx10CommunicationConfiguration2.GetMacAddress", Value, Device},
        {"Krx10CommunicationConfiguration2.SetIpAddress", Nothing, Device},
        {"Krx10CommunicationConfiguration2.SetDhcp", Nothing, Device},
        {"Krx10CommunicationConfiguration2.SetSubnetMask", Nothing, Device},
        {"Krx10CommunicationConfiguration2.SetGateway", Nothing, Device},
        {"Krx10CommunicationConfiguration2.SetDescription", Nothing, Device},
        {"Krx10CommunicationConfiguration2.ApplyConfiguration", Nothing, Device},
    });
}

inline constexpr auto kOperations = MakeOperationTable();

inline constexpr auto kEvents = std::to_array<Operation>({
    {"ProgrammingDeviceControlEvents.ModeChanged", Delivers::Nothing, Provider::Device},
    {"ProgrammingDeviceControlEvents.DeviceMessage", Delivers::Nothing, Provider::Device},
    {"ProgrammingDeviceControlEvents.Event3", Delivers::Nothing, Provider::Device},
    {"ExtConnectionEvents.ConnectionStateChanged", Delivers::Nothing, Provider::Host},
    {"ExtConnectionEvents.Event2", Delivers::Nothing, Provider::Host},
});

/// Every operation that reaches IInterceptor::Call.
constexpr std::span<const Operation> Operations() { return kOperations; }

/// Every event that reaches IInterceptor::Deliver.
constexpr std::span<const Operation> Events() { return kEvents; }

/// Position of the operation of that name in `table`, or the size of the table.
constexpr std::size_t PositionIn(std::span<const Operation> table, std::string_view name) {
    std::size_t position = 0;
    while (position < table.size() && table[position].name != name) {
        ++position;
    }
    return position;
}

/// The operation of that name, or null for a name that is none (events are not operations).
constexpr const Operation* FindOperation(std::string_view name) {
    const std::size_t position = PositionIn(kOperations, name);
    return position < kOperations.size() ? &kOperations[position] : nullptr;
}

}
