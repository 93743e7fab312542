#pragma once

#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "tests/support/NotingDevice.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace support {

/// A device that answers what it is asked like the host's own, and only notes what would change it.
class CWritingDevice final : public CNotingDevice,
                             public contract::ISubsystemAccess,
                             public contract::ISubsystem,
                             public contract::IProgrammingDeviceSubsystem,
                             public std::enable_shared_from_this<CWritingDevice> {
public:
    explicit CWritingDevice(std::shared_ptr<contract::ISubsystemAccess> host)
        : m_host(std::move(host)) {}

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

    // contract::IKrx10Control and the configuration
    Status GetCommunicationConfiguration(
        std::shared_ptr<contract::IKrx10CommunicationConfiguration>& configuration) override;
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

private:
    Status ReportMode() override;
    Status AnswerTo(const std::string& call) override;

    const std::shared_ptr<contract::ISubsystemAccess> m_host;
    std::shared_ptr<contract::ISubsystem> m_hostSubsystem;
    std::shared_ptr<contract::IProgrammingDeviceSubsystem> m_subsystem;
    std::shared_ptr<contract::IProgrammingDeviceControl> m_control;
    std::shared_ptr<contract::IKrx10Control> m_krx10;
    std::shared_ptr<contract::IKrx10CommunicationConfiguration> m_configuration;
    std::shared_ptr<contract::IKrx10CommunicationConfiguration2> m_network;
};

}
