#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/Krx10Control.h"
#include "simulator/folder/AddressText.h"
#include "tests/simulator/WritingFixture.h"

#include <algorithm>

namespace simulator {
namespace {

using IConfiguration = contract::IKrx10CommunicationConfiguration2;

/// The network settings of a device, set through a working copy.
class NetworkTest : public WritingFixture {
protected:
    void SetUp() override {
        m_description = SmallDevice(kKrx20);
        m_description.serialNumber = 200013846;
        m_description.network = {"192.0.2.20",
                                 Address("192.0.2.20"),
                                 Address("255.255.255.0"),
                                 Address("192.0.2.1"),
                                 false,
                                 "bench 3",
                                 "00-00-5E-00-53-20"};
        Connect(m_description);
    }
    static contract::AddressValue Address(const std::string& text) {
        return ParseAddress(text).value();
    }
    std::shared_ptr<IConfiguration> Copy() {
        const auto control =
            ObjectOf(*Subsystem(), &contract::IProgrammingDeviceSubsystem::GetKrx10Control);
        const auto first =
            ObjectOf(*control, &contract::IKrx10Control::GetCommunicationConfiguration);
        return ObjectOf(
            *first, &contract::IKrx10CommunicationConfiguration::QueryCommunicationConfiguration2);
    }
    std::shared_ptr<IConfiguration> CopyWith(const std::string& address, const std::string& mask,
                                             const std::string& gateway) {
        const auto copy = Copy();
        EXPECT_EQ(copy->SetIpAddress(Address(address)), contract::kSuccess);
        EXPECT_EQ(copy->SetDhcp(false), contract::kSuccess);
        EXPECT_EQ(copy->SetSubnetMask(Address(mask)), contract::kSuccess);
        EXPECT_EQ(copy->SetGateway(Address(gateway)), contract::kSuccess);
        return copy;
    }
    void ExpectRefused(IConfiguration& copy, const std::string& text) {
        ExpectFailure(copy.ApplyConfiguration(), 0x80070057, text);
        EXPECT_EQ(m_device->State(), m_description);
    }
    std::shared_ptr<IConfiguration> CopyByDhcp() {
        const auto copy = Copy();
        EXPECT_EQ(copy->SetIpAddress(contract::kAddressByDhcp), contract::kSuccess);
        EXPECT_EQ(copy->SetDhcp(true), contract::kSuccess);
        return copy;
    }

    DeviceDescription m_description;
};

TEST_F(NetworkTest, ApplyMakesTheCopyTheDevices) {
    const auto copy = CopyWith("10.1.2.3", "255.255.0.0", "10.1.0.1");
    EXPECT_EQ(copy->SetDescription("bench 4"), contract::kSuccess);
    EXPECT_EQ(copy->ApplyConfiguration(), contract::kSuccess);
    const auto fresh = Copy();
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetIpAddress), "10.1.2.3");
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetIpAddressValue), Address("10.1.2.3"));
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetSubnetMask), Address("255.255.0.0"));
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetGateway), Address("10.1.0.1"));
    EXPECT_FALSE(ValueOf(*fresh, &IConfiguration::GetUseDhcp));
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetDescription), "bench 4");
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetMacAddress), "00-00-5E-00-53-20");
    EXPECT_EQ(m_log->events, Events{});
}

TEST_F(NetworkTest, DhcpLeasesAnAddressOfTheSameNetwork) {
    EXPECT_EQ(CopyByDhcp()->ApplyConfiguration(), contract::kSuccess);
    const auto fresh = Copy();
    EXPECT_TRUE(ValueOf(*fresh, &IConfiguration::GetUseDhcp));
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetIpAddressValue), 0xFFFFFFFF);
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetIpAddress), "192.0.2.146");
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetGateway), Address("192.0.2.1"));
}

TEST_F(NetworkTest, DhcpWithoutKnownNetworkLeasesOfAnOrdinaryOne) {
    m_description.network = {};
    Connect(m_description);
    EXPECT_EQ(CopyByDhcp()->ApplyConfiguration(), contract::kSuccess);
    const auto fresh = Copy();
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetIpAddress), "192.168.1.146");
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetSubnetMask), Address("255.255.255.0"));
    EXPECT_EQ(ValueOf(*fresh, &IConfiguration::GetGateway), Address("192.168.1.1"));
}

TEST_F(NetworkTest, LeaseInSmallNetworkIsAHostAndNotTheGateway) {
    m_description.network.subnetMask = Address("255.255.255.248");
    m_description.network.gateway = Address("192.0.2.3");
    for (std::int32_t serialNumber = 0; serialNumber < 100; ++serialNumber) {
        m_description.serialNumber = serialNumber;
        Connect(m_description);
        EXPECT_EQ(CopyByDhcp()->ApplyConfiguration(), contract::kSuccess);
        const auto lease = ValueOf(*Copy(), &IConfiguration::GetIpAddress);
        const std::vector<std::string> hosts{"192.0.2.1", "192.0.2.2", "192.0.2.4", "192.0.2.5",
                                             "192.0.2.6"};
        EXPECT_NE(std::find(hosts.begin(), hosts.end(), lease), hosts.end()) << lease;
    }
}

TEST_F(NetworkTest, LeaseGoesOnWhileDhcpStays) {
    m_description.network.useDhcp = true;
    m_description.network.ipAddress = "192.0.2.77";
    Connect(m_description);
    const auto copy = CopyByDhcp();
    EXPECT_EQ(copy->SetDescription("new"), contract::kSuccess);
    EXPECT_EQ(copy->ApplyConfiguration(), contract::kSuccess);
    EXPECT_EQ(ValueOf(*Copy(), &IConfiguration::GetIpAddress), "192.0.2.77");
    EXPECT_EQ(ValueOf(*Copy(), &IConfiguration::GetDescription), "new");
}

TEST_F(NetworkTest, MaskWithGapsIsRefused) {
    ExpectRefused(*CopyWith("10.1.2.3", "255.0.255.0", "0.0.0.0"),
                  "255.0.255.0 is not a subnet mask");
    ExpectRefused(*CopyWith("10.1.2.3", "0.0.0.0", "0.0.0.0"), "0.0.0.0 is not a subnet mask");
}

TEST_F(NetworkTest, AddressOfNoHostIsRefused) {
    for (const auto* address : {"0.0.0.0", "10.1.2.0", "10.1.2.255", "127.0.0.1", "224.0.0.1",
                                "255.255.255.255", "0.1.2.3"}) {
        ExpectRefused(*CopyWith(address, "255.255.255.0", "0.0.0.0"),
                      std::string(address) + " is not the address of a device in a network with "
                                             "the mask 255.255.255.0");
    }
}

TEST_F(NetworkTest, GatewayElsewhereIsRefused) {
    for (const auto* gateway : {"10.1.3.1", "10.1.2.3"}) {
        ExpectRefused(*CopyWith("10.1.2.3", "255.255.255.0", gateway),
                      "The gateway " + std::string(gateway) +
                          " is not another address of the device's network");
    }
}

TEST_F(NetworkTest, NetworkWithoutGatewayIsTaken) {
    EXPECT_EQ(CopyWith("10.1.2.3", "255.255.255.0", "0.0.0.0")->ApplyConfiguration(),
              contract::kSuccess);
    EXPECT_EQ(CopyWith("10.1.2.3", "255.255.255.255", "0.0.0.0")->ApplyConfiguration(),
              contract::kSuccess);
}

TEST_F(NetworkTest, DescriptionBeyond110CharactersIsRefused) {
    const auto copy = Copy();
    EXPECT_EQ(copy->SetDescription(std::string(111, 'd')), contract::kSuccess);
    ExpectRefused(*copy, "The description has 111 characters; a device keeps at most 110");
    EXPECT_EQ(copy->SetDescription(std::string(110, 'd')), contract::kSuccess);
    EXPECT_EQ(copy->ApplyConfiguration(), contract::kSuccess);
}

TEST_F(NetworkTest, DescriptionOf110CharactersOfAnyLengthIsKeptWhole) {
    std::string cyrillic;
    std::string emoji;
    for (int count = 0; count < 55; ++count) {
        cyrillic += "\u0416\u044F";
        emoji += "\U0001F4F1";
    }
    for (const auto& text : {cyrillic, emoji}) {
        const auto copy = Copy();
        EXPECT_EQ(copy->SetDescription(text), contract::kSuccess);
        EXPECT_EQ(copy->ApplyConfiguration(), contract::kSuccess);
        EXPECT_EQ(ValueOf(*Copy(), &IConfiguration::GetDescription), text);
        EXPECT_EQ(copy->SetDescription(text + "d"), contract::kSuccess);
        ExpectFailure(copy->ApplyConfiguration(), 0x80070057,
                      "The description has 111 characters; a device keeps at most 110");
    }
}

TEST_F(NetworkTest, DescriptionThatIsNotUtf8IsRefused) {
    const auto copy = Copy();
    EXPECT_EQ(copy->SetDescription("\xC0\x80"), contract::kSuccess);
    ExpectFailure(copy->ApplyConfiguration(), 0x80070459, "The description is not UTF-8");
}

TEST_F(NetworkTest, CopyOfADeviceThatWentIsNotApplied) {
    const auto copy = Copy();
    Connect(m_description);
    ExpectFailure(copy->ApplyConfiguration(), 0x8007048F, "No programming device is connected");
    m_host.RemoveDevice();
    ExpectFailure(copy->ApplyConfiguration(), 0x8007048F, "No programming device is connected");
}

}
}
