#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using headless::CHeadlessView;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kCaption = "KRX-10 Configuration";
constexpr const char* kReadFailed =
    "Cannot get communication configuration parameters of KRX-10 / KRX-20";
constexpr const char* kWriteFailed =
    "Configuration of KRX-10's / KRX-20's communication parameters failed";
constexpr const char* kGetConfiguration = "Krx10Control.GetCommunicationConfiguration";

const Status kFault = Status::FromBits(0x8007001F);

class NetworkConfigurationTest : public CommandFixture {
protected:
    void SetUp() override { Start(); }

    /// Presses the button, changes what `change` does, and presses OK.
    void Configure(headless::CPromptQueue::DialogScript change = [](CHeadlessView&) {}) {
        desktop->prompts.AnswerDialog([change = std::move(change)](CHeadlessView& dialog) {
            change(dialog);
            dialog.Press(1);
        });
        ASSERT_TRUE(PressButton(kNetworkButton));
    }
    static void NewAddress(CHeadlessView& dialog) { dialog.TypeAddress(247, 0x0A000002); }
    static void FormatBoth(CHeadlessView& dialog) {
        dialog.Toggle(250);
        dialog.Toggle(251);
    }
    std::size_t Listings() const {
        return faults->Calls("ProgrammingDeviceControl.GetFileListing");
    }
    Shown Report(const char* text) const {
        return ErrorReport(text, kCaption, kFault, "no answer");
    }
    void FailOperation(const char* operation, std::size_t number) {
        faults->Fail({number, operation}, {kFault, "no answer"});
    }
};

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
                            "ProductInformation.GetProductDetection", kGetConfiguration,
                            "Krx10CommunicationConfiguration.QueryCommunicationConfiguration2",
                            "Krx10CommunicationConfiguration2.SetDhcp",
                            "Krx10CommunicationConfiguration2.SetSubnetMask",
                            "Krx10CommunicationConfiguration2.SetGateway",
                            "Krx10CommunicationConfiguration2.SetDescription",
                            "Krx10CommunicationConfiguration2.ApplyConfiguration",
                            kGetConfiguration,
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

// Failures

TEST_F(NetworkConfigurationTest, WithoutControlTheCommandIsAFatalError) {
    EndPanel();
    panel = CKRX8Maintenance::Create(std::make_unique<headless::CHeadlessToolkit>(desktop));
    StartView();
    panel->OnCommand(kNetworkButton);
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(ErrorReport("A fatal error has occured, please restart Halcyon and try again.",
                                kCaption, Status::FromBits(0x80004003))));
    EXPECT_THAT(desktop->prompts.Dialogs(), IsEmpty());
}

TEST_F(NetworkConfigurationTest, MissingKrx10ControlIsReported) {
    FailOperation("ProgrammingDeviceSubsystem.GetKrx10Control", 2);
    Configure();
    EXPECT_THAT(TakeMessages(), ElementsAre(Report("Krx10Control Feature getting failed")));
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_EQ(faults->Calls("ProductInformation.GetProductDetection"), 0u);
}

TEST_F(NetworkConfigurationTest, MissingKrx10ControlStillBringsTheMediaBack) {
    FailOperation("ProgrammingDeviceSubsystem.GetKrx10Control", 2);
    Configure(FormatBoth);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(device->calls, ElementsAre("RequestMode(1)", "RerunMediaTests(0x00012000)"));
    EXPECT_EQ(Listings(), 2u);
}

struct CallCase {
    const char* call;
    const char* text;
};

void PrintTo(const CallCase& value, std::ostream* out) { *out << value.call; }

class FailingWriteTest : public NetworkConfigurationTest,
                         public testing::WithParamInterface<CallCase> {};

TEST_P(FailingWriteTest, FailureEndsTheRestButBringsTheMediaBack) {
    FailCall(GetParam().call, kFault, "no answer");
    Configure([](CHeadlessView& dialog) {
        NewAddress(dialog);
        FormatBoth(dialog);
        dialog.TypeText(249, "new name");
    });
    EXPECT_THAT(TakeMessages(), ElementsAre(Report(GetParam().text)));
    ASSERT_GE(device->calls.size(), 3u);
    const auto failed = device->calls.end() - 3;
    EXPECT_EQ(*failed, GetParam().call);
    EXPECT_EQ(failed[1], "RequestMode(1)");
    EXPECT_EQ(failed[2], "RerunMediaTests(0x00012000)");
    EXPECT_EQ(Listings(), 2u);
}

INSTANTIATE_TEST_SUITE_P(Calls, FailingWriteTest,
                         testing::Values(CallCase{"PrepareMedia(1)", "Flash preparation failed"},
                                         CallCase{"PrepareMedia(2)", "PCCard preparation failed"},
                                         CallCase{"SetIpAddress(0x0200000A)", kWriteFailed},
                                         CallCase{"SetDhcp(false)", kWriteFailed},
                                         CallCase{"SetSubnetMask(0x00FFFFFF)", kWriteFailed},
                                         CallCase{"SetGateway(0xFE00A8C0)", kWriteFailed},
                                         CallCase{"SetDescription(new name)", kWriteFailed},
                                         CallCase{"ApplyConfiguration()", kWriteFailed}));

TEST_F(NetworkConfigurationTest, FailedApplyKeepsTheOldAddressesAndTheNewDescription) {
    FailCall("ApplyConfiguration()");
    Configure([](CHeadlessView& dialog) {
        NewAddress(dialog);
        dialog.TypeText(249, "new name");
    });
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(State().network.ipAddress, 0x0100A8C0u);
    EXPECT_EQ(State().network.description, "new name");
    EXPECT_EQ(Listings(), 1u);
}

struct ReadCase {
    const char* operation;
    std::size_t number; ///< counted with the calls of the refresh before
};

void PrintTo(const ReadCase& value, std::ostream* out) {
    *out << value.operation << " " << value.number;
}

class FailingReadTest : public NetworkConfigurationTest,
                        public testing::WithParamInterface<ReadCase> {};

TEST_P(FailingReadTest, FailureIsReportedOnce) {
    const auto wrappers = interception.LiveWrappers();
    FailOperation(GetParam().operation, GetParam().number);
    Configure();
    EXPECT_THAT(TakeMessages(), ElementsAre(Report(kReadFailed)));
    EXPECT_EQ(Field(kIpAddressField), "192.168.0.1");
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

INSTANTIATE_TEST_SUITE_P(
    Calls, FailingReadTest,
    testing::Values(ReadCase{kGetConfiguration, 2},
                    ReadCase{"Krx10CommunicationConfiguration.QueryCommunicationConfiguration2", 2},
                    ReadCase{kGetConfiguration, 3},
                    ReadCase{"Krx10CommunicationConfiguration.QueryCommunicationConfiguration2", 3},
                    ReadCase{"Krx10CommunicationConfiguration2.GetIpAddressValue", 2},
                    ReadCase{"Krx10CommunicationConfiguration2.GetSubnetMask", 2},
                    ReadCase{"Krx10CommunicationConfiguration2.GetGateway", 2},
                    ReadCase{"Krx10CommunicationConfiguration2.GetUseDhcp", 2},
                    ReadCase{"Krx10CommunicationConfiguration2.GetIpAddress", 2}));

TEST_F(NetworkConfigurationTest, FailuresOfBringingBackAreReportedAndTheRestGoesOn) {
    device->answer = [](const std::string& call) {
        contract::SetErrorInfo("no answer");
        return call.starts_with("Re") ? kFault : contract::kSuccess;
    };
    Configure(FormatBoth);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Report("Mode changing to Normal mode failed"),
                            Report("Re-executing of CF and/or PCCard test(s) failed")));
    EXPECT_EQ(Listings(), 2u);
}

}
