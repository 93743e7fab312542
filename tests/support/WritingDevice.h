#pragma once

#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/Krx10Control.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace support {

/// A device that answers what it is asked like the host's own, and of everything that would change
/// it only notes the call with its arguments, such as "DeleteFile(22, 2)".
class CWritingDevice final : public contract::ISubsystemAccess,
                             public contract::ISubsystem,
                             public contract::IProgrammingDeviceSubsystem,
                             public contract::IProgrammingDeviceControl,
                             public contract::IKrx10Control,
                             public contract::IKrx10CommunicationConfiguration,
                             public contract::IKrx10CommunicationConfiguration2,
                             public std::enable_shared_from_this<CWritingDevice> {
public:
    using Status = contract::Status;

    explicit CWritingDevice(std::shared_ptr<contract::ISubsystemAccess> host)
        : m_host(std::move(host)) {}

    /// In order.
    std::vector<std::string> calls;
    /// What a call answers; success at first. May leave a description.
    std::function<Status(const std::string& call)> answer;
    /// The type that the device says it is of; none: its own.
    std::optional<std::int32_t> toldType;
    /// The count of external storages that it tells; none: its own.
    std::optional<std::int32_t> toldStorages;
    /// What it answers about its software; null: its own.
    std::shared_ptr<contract::ISoftwareInfo> software;

    // contract::ISubsystemAccess, ISubsystem and IProgrammingDeviceSubsystem
    Status GetSubsystem(const contract::Guid& identifier,
                        std::shared_ptr<contract::ISubsystem>& subsystem) override;
    Status QueryProgrammingDeviceSubsystem(
        std::shared_ptr<contract::IProgrammingDeviceSubsystem>& subsystem) override;
    Status
    QueryProductInformation(std::shared_ptr<contract::IProductInformation>& information) override;
    Status get_ProgrammingDeviceControl(
        std::shared_ptr<contract::IProgrammingDeviceControl>& control) override;
    Status GetKrx10Control(std::shared_ptr<contract::IKrx10Control>& control) override;

    // contract::IProgrammingDeviceControl
    Status QueryBaseObject(
        std::shared_ptr<contract::IBaseObject<contract::_IProgrammingDeviceControlEvents>>& object)
        override {
        return m_control->QueryBaseObject(object);
    }
    Status GetHardwareInfo(std::shared_ptr<contract::IHardwareInfo>& info) override;
    Status GetSoftwareInfo(std::shared_ptr<contract::ISoftwareInfo>& info) override;
    Status GetFreeResources(std::shared_ptr<contract::IFreeResources>& resources) override {
        return m_control->GetFreeResources(resources);
    }
    Status GetSelfTestResults(std::shared_ptr<contract::ISelfTestResults>& results) override {
        return m_control->GetSelfTestResults(results);
    }
    Status GetFileListing(std::shared_ptr<contract::IFileListing>& listing) override {
        return m_control->GetFileListing(listing);
    }
    Status GetExternalStorages(std::shared_ptr<contract::IExternalStorages>& storages) override;
    /// A request for the mode goes to the host's device and is not noted.
    Status RequestMode(contract::ModeRequest request) override;
    /// Delivers a result that looks like a failure, for nobody to heed.
    Status UploadPhoneFile(const std::string& path, std::int32_t destination, std::int32_t method,
                           std::int32_t& result) override;
    Status MoveFile(std::int32_t type, std::int32_t id, std::int32_t destination,
                    std::int32_t reserved) override;
    Status DeleteFile(std::int32_t type, std::int32_t id) override;
    Status UploadCode(const std::string& path, std::int32_t codeKind, std::int32_t reserved,
                      std::int32_t mode) override;
    Status UpdateFromIniFile(const std::string& path) override;
    Status RerunMediaTests(std::uint32_t mask) override;

    // contract::IKrx10Control and the configuration
    Status GetCommunicationConfiguration(
        std::shared_ptr<contract::IKrx10CommunicationConfiguration>& configuration) override;
    Status PrepareMedia(contract::Medium medium) override;
    Status QueryCommunicationConfiguration2(
        std::shared_ptr<contract::IKrx10CommunicationConfiguration2>& configuration) override;
    Status GetIpAddress(std::string& text) override { return m_network->GetIpAddress(text); }
    Status GetIpAddressValue(contract::AddressValue& address) override {
        return m_network->GetIpAddressValue(address);
    }
    Status GetSubnetMask(contract::AddressValue& mask) override {
        return m_network->GetSubnetMask(mask);
    }
    Status GetGateway(contract::AddressValue& gateway) override {
        return m_network->GetGateway(gateway);
    }
    Status GetUseDhcp(bool& useDhcp) override { return m_network->GetUseDhcp(useDhcp); }
    Status GetDescription(std::string& text) override { return m_network->GetDescription(text); }
    Status GetMacAddress(std::string& text) override { return m_network->GetMacAddress(text); }
    Status SetIpAddress(contract::AddressValue address) override;
    Status SetDhcp(bool useDhcp) override;
    Status SetSubnetMask(contract::AddressValue mask) override;
    Status SetGateway(contract::AddressValue gateway) override;
    Status SetDescription(const std::string& description) override;
    Status ApplyConfiguration() override;

private:
    Status Note(const std::string& call);

    const std::shared_ptr<contract::ISubsystemAccess> m_host;
    std::shared_ptr<contract::ISubsystem> m_hostSubsystem;
    std::shared_ptr<contract::IProgrammingDeviceSubsystem> m_subsystem;
    std::shared_ptr<contract::IProgrammingDeviceControl> m_control;
    std::shared_ptr<contract::IKrx10Control> m_krx10;
    std::shared_ptr<contract::IKrx10CommunicationConfiguration> m_configuration;
    std::shared_ptr<contract::IKrx10CommunicationConfiguration2> m_network;
};

}
