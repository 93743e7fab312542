#include "interception/Forwarders.h"

#include "interception/Forwarder.h"

#include <utility>

namespace interception {

using namespace contract;

namespace {

class CKrx10CommunicationConfigurationForwarder final
    : public CForwarder<IKrx10CommunicationConfiguration> {
public:
    using CForwarder::CForwarder;

    Status QueryCommunicationConfiguration2(
        std::shared_ptr<IKrx10CommunicationConfiguration2>& configuration) override {
        return CallForObject<&Target::QueryCommunicationConfiguration2>(
            "Krx10CommunicationConfiguration.QueryCommunicationConfiguration2", configuration);
    }
};

class CKrx10CommunicationConfiguration2Forwarder final
    : public CForwarder<IKrx10CommunicationConfiguration2> {
public:
    using CForwarder::CForwarder;

    Status GetIpAddress(std::string& text) override {
        return Call<&Target::GetIpAddress>("Krx10CommunicationConfiguration2.GetIpAddress", text);
    }
    Status GetIpAddressValue(AddressValue& address) override {
        return Call<&Target::GetIpAddressValue>(
            "Krx10CommunicationConfiguration2.GetIpAddressValue", address);
    }
    Status GetSubnetMask(AddressValue& mask) override {
        return Call<&Target::GetSubnetMask>("Krx10CommunicationConfiguration2.GetSubnetMask", mask);
    }
    Status GetGateway(AddressValue& gateway) override {
        return Call<&Target::GetGateway>("Krx10CommunicationConfiguration2.GetGateway", gateway);
    }
    Status GetUseDhcp(bool& useDhcp) override {
        return Call<&Target::GetUseDhcp>("Krx10CommunicationConfiguration2.GetUseDhcp", useDhcp);
    }
    Status GetDescription(std::string& description) override {
        return Call<&Target::GetDescription>("Krx10CommunicationConfiguration2.GetDescription",
                                             description);
    }
    Status GetMacAddress(std::string& text) override {
        return Call<&Target::GetMacAddress>("Krx10CommunicationConfiguration2.GetMacAddress", text);
    }
    Status SetIpAddress(AddressValue address) override {
        return Call<&Target::SetIpAddress>("Krx10CommunicationConfiguration2.SetIpAddress",
                                           address);
    }
    Status SetDhcp(bool useDhcp) override {
        return Call<&Target::SetDhcp>("Krx10CommunicationConfiguration2.SetDhcp", useDhcp);
    }
    Status SetSubnetMask(AddressValue mask) override {
        return Call<&Target::SetSubnetMask>("Krx10CommunicationConfiguration2.SetSubnetMask", mask);
    }
    Status SetGateway(AddressValue gateway) override {
        return Call<&Target::SetGateway>("Krx10CommunicationConfiguration2.SetGateway", gateway);
    }
    Status SetDescription(const std::string& description) override {
        return Call<&Target::SetDescription>("Krx10CommunicationConfiguration2.SetDescription",
                                             description);
    }
    Status ApplyConfiguration() override {
        return Call<&Target::ApplyConfiguration>(
            "Krx10CommunicationConfiguration2.ApplyConfiguration");
    }
};

}

Reference<IKrx10CommunicationConfiguration>
MakeForwarder(RegistryReference registry, Reference<IKrx10CommunicationConfiguration> target) {
    return std::make_shared<CKrx10CommunicationConfigurationForwarder>(std::move(registry),
                                                                       std::move(target));
}

Reference<IKrx10CommunicationConfiguration2>
MakeForwarder(RegistryReference registry, Reference<IKrx10CommunicationConfiguration2> target) {
    return std::make_shared<CKrx10CommunicationConfiguration2Forwarder>(std::move(registry),
                                                                        std::move(target));
}

}
