#include "tests/panel/netconf/NetworkConfigurationFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using headless::CHeadlessView;
using testing::ElementsAre;
using testing::IsEmpty;

class NetworkConfigurationTest : public NetworkConfigurationFixture {};

TEST_F(NetworkConfigurationTest, DialogShowsWhatIsKeptOverThePanel) {
    desktop->prompts.AnswerDialog([](CHeadlessView& dialog) {
        EXPECT_EQ(dialog.GetAddress(247), 0xC0A80001u);
        EXPECT_EQ(dialog.GetAddress(261), 0xFFFFFF00u);
        EXPECT_EQ(dialog.GetAddress(263), 0xC0A800FEu);
        EXPECT_FALSE(dialog.IsChecked(248));
        EXPECT_EQ(dialog.GetText(249), "bench 3");
    });
    PressButton(kNetworkButton);
    EXPECT_THAT(desktop->prompts.Dialogs(),
                ElementsAre(headless::ShownDialog{203, Owner::Panel, DialogOutcome::Closed(2)}));
}

TEST_F(NetworkConfigurationTest, UnchangedAddressIsNotSetButAllElseIs) {
    Configure();
    EXPECT_THAT(device->calls,
                ElementsAre("SetDhcp(false)", "SetSubnetMask(0x00FFFFFF)", "SetGateway(0xFE00A8C0)",
                            "SetDescription(bench 3)", "ApplyConfiguration()"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(Listings(), 1u);
}

TEST_F(NetworkConfigurationTest, NewAddressIsSetFirst) {
    Configure(NewAddress);
    EXPECT_EQ(device->calls.front(), "SetIpAddress(0x0200000A)");
    EXPECT_EQ(device->calls.size(), 6u);
}

TEST_F(NetworkConfigurationTest, DhcpSendsNeitherMaskNorGateway) {
    Configure([](CHeadlessView& dialog) { dialog.Toggle(248); });
    EXPECT_THAT(device->calls, ElementsAre("SetIpAddress(0xFFFFFFFF)", "SetDhcp(true)",
                                           "SetDescription(bench 3)", "ApplyConfiguration()"));
}

TEST_F(NetworkConfigurationTest, DhcpThatIsInForceDoesNotSetTheAddressAgain) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.network.ipAddressValue = 0xFFFFFFFF;
    description.network.useDhcp = true;
    ConnectDevice(description);
    Configure();
    EXPECT_EQ(device->calls.front(), "SetDhcp(true)");
}

TEST_F(NetworkConfigurationTest, ConfigurationIsReadBackIntoFieldAndCache) {
    device->answer = [this](const std::string& call) {
        if (call == "ApplyConfiguration()") {
            simulator::DeviceDescription changed = HealthyDevice(simulator::kKrx20);
            changed.network.ipAddress = "10.0.0.2";
            changed.network.ipAddressValue = 0x0200000A;
            changed.network.subnetMask = 0x000000FF;
            changed.network.gateway = 0x0100000A;
            changed.network.useDhcp = true;
            changed.network.description = "bench 5";
            host.InsertDevice(simulator::CDevice::Create(changed));
        }
        return contract::kSuccess;
    };
    Configure();
    EXPECT_EQ(Field(kIpAddressField), "10.0.0.2");
    EXPECT_EQ(State().network.ipAddress, 0x0200000Au);
    EXPECT_EQ(State().network.subnetMask, 0x000000FFu);
    EXPECT_EQ(State().network.gateway, 0x0100000Au);
    EXPECT_TRUE(State().network.useDhcp);
    EXPECT_EQ(State().network.description, "bench 3");
}

TEST_F(NetworkConfigurationTest, EmptyAddressTextShowsZeros) {
    device->answer = [this](const std::string& call) {
        if (call == "ApplyConfiguration()") {
            simulator::DeviceDescription changed = HealthyDevice(simulator::kKrx20);
            changed.network.ipAddress.clear();
            host.InsertDevice(simulator::CDevice::Create(changed));
        }
        return contract::kSuccess;
    };
    Configure();
    EXPECT_EQ(Field(kIpAddressField), "0.0.0.0");
}

TEST_F(NetworkConfigurationTest, DeviceIsCalledInOrder) {
    Configure();
    EXPECT_THAT(TakeCalls(),
                ElementsAre("ProgrammingDeviceSubsystem.GetKrx10Control",
                            "SubsystemAccess.GetSubsystem", "Subsystem.QueryProductInformation",
                            "ProductInformation.GetProductDetection",
                            "Krx10Control.GetCommunicationConfiguration",
                            "Krx10CommunicationConfiguration.QueryCommunicationConfiguration2",
                            "Krx10CommunicationConfiguration2.SetDhcp",
                            "Krx10CommunicationConfiguration2.SetSubnetMask",
                            "Krx10CommunicationConfiguration2.SetGateway",
                            "Krx10CommunicationConfiguration2.SetDescription",
                            "Krx10CommunicationConfiguration2.ApplyConfiguration",
                            "Krx10Control.GetCommunicationConfiguration",
                            "Krx10CommunicationConfiguration.QueryCommunicationConfiguration2",
                            "Krx10CommunicationConfiguration2.GetIpAddressValue",
                            "Krx10CommunicationConfiguration2.GetSubnetMask",
                            "Krx10CommunicationConfiguration2.GetGateway",
                            "Krx10CommunicationConfiguration2.GetUseDhcp",
                            "Krx10CommunicationConfiguration2.GetIpAddress",
                            "ProductDetection.QueryProductDetectionControl"));
}

TEST_F(NetworkConfigurationTest, CancelSendsNothingAndKeepsTheDescription) {
    desktop->prompts.AnswerDialog([](CHeadlessView& dialog) {
        dialog.TypeText(249, "new name");
        dialog.Press(2);
    });
    PressButton(kNetworkButton);
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_EQ(State().network.description, "bench 3");
}

TEST_F(NetworkConfigurationTest, NewDescriptionIsKeptBeforeTheDeviceIsCalled) {
    std::string kept;
    faults->RunBefore({2, "ProgrammingDeviceSubsystem.GetKrx10Control"},
                      [&] { kept = State().network.description; });
    Configure([](CHeadlessView& dialog) { dialog.TypeText(249, "new name"); });
    EXPECT_EQ(kept, "new name");
}

TEST_F(NetworkConfigurationTest, DialogThatCannotBeMadeStopsTheCommand) {
    desktop->prompts.FailDialog(8);
    PressButton(kNetworkButton);
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(NetworkConfigurationTest, WithoutFormattingPollingGoesOn) {
    device->answer = [this](const std::string&) {
        EXPECT_TRUE(host.PollingEnabled());
        EXPECT_FALSE(State().refreshAllowed);
        EXPECT_EQ(desktop->cursorDepth, 1);
        return contract::kSuccess;
    };
    Configure();
    EXPECT_EQ(faults->Calls("ProductDetectionControl.SetPollingEnabled"), 0u);
}

// Formatting

TEST_F(NetworkConfigurationTest, MediaAreFormattedFirstAndTestedLast) {
    Configure(FormatBoth);
    EXPECT_THAT(device->calls, ElementsAre("PrepareMedia(1)", "PrepareMedia(2)", "SetDhcp(false)",
                                           "SetSubnetMask(0x00FFFFFF)", "SetGateway(0xFE00A8C0)",
                                           "SetDescription(bench 3)", "ApplyConfiguration()",
                                           "RequestMode(1)", "RerunMediaTests(0x00012000)"));
    EXPECT_EQ(Listings(), 2u);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(NetworkConfigurationTest, EachMediumHasItsBit) {
    Configure([](CHeadlessView& dialog) { dialog.Toggle(250); });
    EXPECT_EQ(device->calls.front(), "PrepareMedia(1)");
    EXPECT_EQ(device->calls.back(), "RerunMediaTests(0x00010000)");
    device->calls.clear();
    Configure([](CHeadlessView& dialog) { dialog.Toggle(251); });
    EXPECT_EQ(device->calls.front(), "PrepareMedia(2)");
    EXPECT_EQ(device->calls.back(), "RerunMediaTests(0x00002000)");
}

TEST_F(NetworkConfigurationTest, PollingIsSuspendedFromFormattingToReadingBack) {
    device->answer = [this](const std::string& call) {
        const bool isAfterwards = call.starts_with("Re");
        EXPECT_EQ(host.PollingEnabled(), isAfterwards) << call;
        EXPECT_EQ(State().refreshAllowed, isAfterwards) << call;
        EXPECT_EQ(desktop->cursorDepth, isAfterwards || call.starts_with("P") ? 0 : 1) << call;
        return contract::kSuccess;
    };
    Configure(FormatBoth);
    EXPECT_EQ(device->calls.size(), 9u);
}

}
