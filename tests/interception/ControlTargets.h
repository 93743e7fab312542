#pragma once

#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/Krx10Control.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceControlEvents.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "tests/interception/Target.h"

namespace interception {

template <>
class CTarget<contract::IProgrammingDeviceSubsystem> final
    : public CRecordingTarget<contract::IProgrammingDeviceSubsystem> {
public:
    contract::Status get_ProgrammingDeviceControl(
        std::shared_ptr<contract::IProgrammingDeviceControl>& control) override {
        return Receive<&Target::get_ProgrammingDeviceControl>(control);
    }
    contract::Status GetKrx10Control(std::shared_ptr<contract::IKrx10Control>& control) override {
        return Receive<&Target::GetKrx10Control>(control);
    }
};

template <>
class CTarget<contract::IProgrammingDeviceControl> final
    : public CRecordingTarget<contract::IProgrammingDeviceControl> {
public:
    contract::Status QueryBaseObject(
        std::shared_ptr<contract::IBaseObject<contract::_IProgrammingDeviceControlEvents>>& object)
        override {
        return Receive<&Target::QueryBaseObject>(object);
    }
    contract::Status GetHardwareInfo(std::shared_ptr<contract::IHardwareInfo>& info) override {
        return Receive<&Target::GetHardwareInfo>(info);
    }
    contract::Status GetSoftwareInfo(std::shared_ptr<contract::ISoftwareInfo>& info) override {
        return Receive<&Target::GetSoftwareInfo>(info);
    }
    contract::Status
    GetFreeResources(std::shared_ptr<contract::IFreeResources>& resources) override {
        return Receive<&Target::GetFreeResources>(resources);
    }
    contract::Status
    GetSelfTestResults(std::shared_ptr<contract::ISelfTestResults>& results) override {
        return Receive<&Target::GetSelfTestResults>(results);
    }
    contract::Status GetFileListing(std::shared_ptr<contract::IFileListing>& listing) override {
        return Receive<&Target::GetFileListing>(listing);
    }
    contract::Status
    GetExternalStorages(std::shared_ptr<contract::IExternalStorages>& storages) override {
        return Receive<&Target::GetExternalStorages>(storages);
    }
    contract::Status RequestMode(contract::ModeRequest request) override {
        return Receive<&Target::RequestMode>(request);
    }
    contract::Status UploadPhoneFile(const std::string& path, std::int32_t destination,
                                     std::int32_t method, std::int32_t& result) override {
        return Receive<&Target::UploadPhoneFile>(path, destination, method, result);
    }
    contract::Status MoveFile(std::int32_t type, std::int32_t id, std::int32_t destination,
                              std::int32_t reserved) override {
        return Receive<&Target::MoveFile>(type, id, destination, reserved);
    }
    contract::Status DeleteFile(std::int32_t type, std::int32_t id) override {
        return Receive<&Target::DeleteFile>(type, id);
    }
    contract::Status UploadCode(const std::string& path, std::int32_t codeKind,
                                std::int32_t reserved, std::int32_t mode) override {
        return Receive<&Target::UploadCode>(path, codeKind, reserved, mode);
    }
    contract::Status UpdateFromIniFile(const std::string& path) override {
        return Receive<&Target::UpdateFromIniFile>(path);
    }
    contract::Status RerunMediaTests(std::uint32_t mask) override {
        return Receive<&Target::RerunMediaTests>(mask);
    }
};

template <>
class CTarget<contract::IKrx10Control> final : public CRecordingTarget<contract::IKrx10Control> {
public:
    contract::Status GetCommunicationConfiguration(
        std::shared_ptr<contract::IKrx10CommunicationConfiguration>& configuration) override {
        return Receive<&Target::GetCommunicationConfiguration>(configuration);
    }
    contract::Status PrepareMedia(contract::Medium medium) override {
        return Receive<&Target::PrepareMedia>(medium);
    }
};

template <>
class CTarget<contract::IKrx10CommunicationConfiguration> final
    : public CRecordingTarget<contract::IKrx10CommunicationConfiguration> {
public:
    contract::Status QueryCommunicationConfiguration2(
        std::shared_ptr<contract::IKrx10CommunicationConfiguration2>& configuration) override {
        return Receive<&Target::QueryCommunicationConfiguration2>(configuration);
    }
};

template <>
class CTarget<contract::IKrx10CommunicationConfiguration2> final
    : public CRecordingTarget<contract::IKrx10CommunicationConfiguration2> {
public:
    contract::Status GetIpAddress(std::string& text) override {
        return Receive<&Target::GetIpAddress>(text);
    }
    contract::Status GetIpAddressValue(contract::AddressValue& address) override {
        return Receive<&Target::GetIpAddressValue>(address);
    }
    contract::Status GetSubnetMask(contract::AddressValue& mask) override {
        return Receive<&Target::GetSubnetMask>(mask);
    }
    contract::Status GetGateway(contract::AddressValue& gateway) override {
        return Receive<&Target::GetGateway>(gateway);
    }
    contract::Status GetUseDhcp(bool& useDhcp) override {
        return Receive<&Target::GetUseDhcp>(useDhcp);
    }
    contract::Status GetDescription(std::string& description) override {
        return Receive<&Target::GetDescription>(description);
    }
    contract::Status GetMacAddress(std::string& text) override {
        return Receive<&Target::GetMacAddress>(text);
    }
    contract::Status SetIpAddress(contract::AddressValue address) override {
        return Receive<&Target::SetIpAddress>(address);
    }
    contract::Status SetDhcp(bool useDhcp) override { return Receive<&Target::SetDhcp>(useDhcp); }
    contract::Status SetSubnetMask(contract::AddressValue mask) override {
        return Receive<&Target::SetSubnetMask>(mask);
    }
    contract::Status SetGateway(contract::AddressValue gateway) override {
        return Receive<&Target::SetGateway>(gateway);
    }
    contract::Status SetDescription(const std::string& description) override {
        return Receive<&Target::SetDescription>(description);
    }
    contract::Status ApplyConfiguration() override {
        return Receive<&Target::ApplyConfiguration>();
    }
};

template <>
class CTarget<contract::_IProgrammingDeviceControlEvents> final
    : public CRecordingTarget<contract::_IProgrammingDeviceControlEvents> {
public:
    contract::Status ModeChanged(std::int32_t mode) override {
        return Receive<&Target::ModeChanged>(mode);
    }
    contract::Status DeviceMessage(const std::string& text, std::uint32_t done,
                                   std::uint32_t total) override {
        return Receive<&Target::DeviceMessage>(text, done, total);
    }
    contract::Status Event3(std::int32_t first, std::int32_t second) override {
        return Receive<&Target::Event3>(first, second);
    }
};

}
