#pragma once

#include "contract/device/Krx10CommunicationConfiguration.h"
#include "simulator/Device.h"
#include "simulator/device/DeviceSlot.h"

#include <memory>
#include <utility>

namespace simulator {

/// A working copy of a device's network settings. It can be applied while that device is in the
/// slot; kDeviceNotConnected afterwards.
class CCommunicationConfiguration final
    : public contract::IKrx10CommunicationConfiguration,
      public contract::IKrx10CommunicationConfiguration2,
      public std::enable_shared_from_this<CCommunicationConfiguration> {
public:
    CCommunicationConfiguration(std::shared_ptr<const CDeviceSlot> slot, CDevice& device)
        : m_slot(std::move(slot)),
          m_device(device.weak_from_this()),
          m_settings(device.Description().network) {}

    contract::Status QueryCommunicationConfiguration2(
        std::shared_ptr<contract::IKrx10CommunicationConfiguration2>& configuration) override {
        configuration = shared_from_this();
        return contract::kSuccess;
    }

    contract::Status GetIpAddress(std::string& text) override {
        return Give(m_settings.ipAddress, text);
    }
    contract::Status GetIpAddressValue(contract::AddressValue& address) override {
        return Give(m_settings.ipAddressValue, address);
    }
    contract::Status GetSubnetMask(contract::AddressValue& mask) override {
        return Give(m_settings.subnetMask, mask);
    }
    contract::Status GetGateway(contract::AddressValue& gateway) override {
        return Give(m_settings.gateway, gateway);
    }
    contract::Status GetUseDhcp(bool& useDhcp) override {
        return Give(m_settings.useDhcp, useDhcp);
    }
    contract::Status GetDescription(std::string& description) override {
        return Give(m_settings.description, description);
    }
    contract::Status GetMacAddress(std::string& text) override {
        return Give(m_settings.macAddress, text);
    }

    contract::Status SetIpAddress(contract::AddressValue address) override {
        return Give(address, m_settings.ipAddressValue);
    }
    contract::Status SetDhcp(bool useDhcp) override { return Give(useDhcp, m_settings.useDhcp); }
    contract::Status SetSubnetMask(contract::AddressValue mask) override {
        return Give(mask, m_settings.subnetMask);
    }
    contract::Status SetGateway(contract::AddressValue gateway) override {
        return Give(gateway, m_settings.gateway);
    }
    contract::Status SetDescription(const std::string& description) override {
        return Give(description, m_settings.description);
    }
    contract::Status ApplyConfiguration() override;

private:
    const std::shared_ptr<const CDeviceSlot> m_slot;
    const std::weak_ptr<CDevice> m_device;
    NetworkSettings m_settings;
};

}
