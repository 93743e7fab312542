#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

const auto kFault = contract::Status::FromBits(0x8007001F);

class DeviceResetTest : public CommandFixture {
protected:
    void SetUp() override { Start(); }

    bool Reset() { return PressButton(kResetButton); }
    std::size_t Listings() const {
        return faults->Calls("ProgrammingDeviceControl.GetFileListing");
    }
    /// All that the panel shows but the log: texts, rows, and what is enabled.
    std::string Picture() {
        std::string picture;
        for (const ControlId id : View().StackingOrder()) {
            picture += std::to_string(id) + (IsEnabled(id) ? " on " : " off ");
            picture += (id == kStatusLog ? "" : Field(id)) + "\n";
        }
        for (int row = 0; row < RowCount(); ++row) {
            for (const std::string& cell : Row(row)) {
                picture += cell + "|";
            }
        }
        return picture;
    }
    /// Runs while the device resets.
    void WhileResetting(std::function<void()> action) {
        device->answer = [action = std::move(action)](const std::string&) {
            action();
            return contract::kSuccess;
        };
    }
};

TEST_F(DeviceResetTest, ResetRequestsItAndRefreshes) {
    ASSERT_TRUE(Reset());
    EXPECT_THAT(device->calls, ElementsAre("RequestMode(4)"));
    EXPECT_EQ(Listings(), 2u);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_TRUE(IsEnabled(kResetButton));
}

TEST_F(DeviceResetTest, PollingIsSuspendedThroughTheRefresh) {
    std::vector<bool> isPolling;
    const auto look = [&] { isPolling.push_back(host.PollingEnabled()); };
    WhileResetting(look);
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"}, look);
    Reset();
    EXPECT_THAT(isPolling, ElementsAre(false, false));
    EXPECT_TRUE(host.PollingEnabled());
}

TEST_F(DeviceResetTest, WaitCursorShowsAllTheWhile) {
    std::vector<int> depths;
    const auto look = [&] { depths.push_back(desktop->cursorDepth); };
    WhileResetting(look);
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"}, look);
    Reset();
    EXPECT_THAT(depths, ElementsAre(1, 2));
}

TEST_F(DeviceResetTest, WaitCursorShowsFromBeforeTheGuardUntilAfterIt) {
    std::vector<int> depths;
    const auto look = [&] { depths.push_back(desktop->cursorDepth); };
    faults->RunBefore({1, "ProductInformation.GetProductDetection"}, look);
    faults->RunBefore({2, "ProductDetectionControl.SetPollingEnabled"}, look);
    messageService->whileOpen = look;
    FailCall("RequestMode(4)");
    Reset();
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(depths, ElementsAre(1, 1, 1));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(DeviceResetTest, EventWhileTheGuardIsMadeStartsNoRefresh) {
    faults->RunBefore({1, "ProductInformation.GetProductDetection"}, [this] { RaiseState(7); });
    Reset();
    EXPECT_EQ(faults->Calls("HardwareInfo.GetDeviceType"), 2u);
    EXPECT_EQ(Listings(), 2u);
}

TEST_F(DeviceResetTest, EventDuringTheResetStartsNoRefresh) {
    WhileResetting([this] {
        EXPECT_FALSE(State().refreshAllowed);
        RaiseState(7);
    });
    Reset();
    EXPECT_EQ(faults->Calls("HardwareInfo.GetDeviceType"), 2u);
    EXPECT_EQ(Listings(), 2u);
}

TEST_F(DeviceResetTest, FailureIsReportedWithoutRefresh) {
    const std::string version = Field(kHardwareField);
    FailCall("RequestMode(4)", kFault, "device hangs");
    bool isAllowed = false;
    messageService->whileOpen = [&] { isAllowed = State().refreshAllowed; };
    Reset();
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport("Resetting prommer.", "Prommer Maintenance",
                                                        kFault, "device hangs")));
    EXPECT_TRUE(isAllowed);
    EXPECT_EQ(Listings(), 1u);
    EXPECT_EQ(Field(kHardwareField), version);
    EXPECT_TRUE(IsEnabled(kResetButton));
    EXPECT_TRUE(host.PollingEnabled());
}

TEST_F(DeviceResetTest, EventDuringAFailingResetStartsNoRefresh) {
    device->answer = [this](const std::string&) {
        RaiseState(7);
        return kFault;
    };
    Reset();
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(Listings(), 1u);
}

TEST_F(DeviceResetTest, FailureLeavesThePanelAsItWas) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.selfTests[contract::SelfTest::Usb] = 1;
    ConnectDevice(description);
    SelectRows({1});
    const std::string before = Picture();
    EXPECT_TRUE(IsEnabled(kDetailsButton));
    FailCall("RequestMode(4)", kFault);
    std::string behindTheReport;
    messageService->whileOpen = [&] { behindTheReport = Picture(); };
    Reset();
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(behindTheReport, before);
    EXPECT_EQ(Picture(), before);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(1));
    EXPECT_EQ(State().deviceMode, DeviceMode::Normal);
}

TEST_F(DeviceResetTest, PollingThatWasOffStaysOff) {
    host.SetPollingEnabled(false);
    Reset();
    EXPECT_EQ(Listings(), 2u);
    EXPECT_EQ(faults->Calls("ProductDetectionControl.SetPollingEnabled"), 0u);
    EXPECT_FALSE(host.PollingEnabled());
}

class UnsuspendedResetTest
    : public DeviceResetTest,
      public testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(UnsuspendedResetTest, ResetRunsAfterTheReport) {
    faults->Fail({1, GetParam().first}, {kFault, "no answer"});
    Reset();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport(GetParam().second, "Disabling Product Detection", kFault,
                                        "no answer")));
    EXPECT_THAT(device->calls, ElementsAre("RequestMode(4)"));
    EXPECT_EQ(Listings(), 2u);
    EXPECT_TRUE(host.PollingEnabled());
}

INSTANTIATE_TEST_SUITE_P(
    Steps, UnsuspendedResetTest,
    testing::Values(std::pair("ProductDetection.QueryProductDetectionControl",
                              "Query of IProductDetectionControl interface failed"),
                    std::pair("ProductDetectionControl.GetPollingEnabled",
                              "Product Communication state getting failed"),
                    std::pair("ProductDetectionControl.SetPollingEnabled",
                              "Disabling of product polling failed")));

TEST_F(DeviceResetTest, ResetRunsAlthoughPollingCannotBeSuspended) {
    faults->Fail({1, "ProductInformation.GetProductDetection"}, {kFault, "no answer"});
    Reset();
    EXPECT_THAT(device->calls, ElementsAre("RequestMode(4)"));
    EXPECT_EQ(Listings(), 2u);
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(ErrorReport("IProductDetection getting failed",
                                "Product Detection disabler initializing", kFault, "no answer"),
                    ErrorReport("Query of IProductDetectionControl interface failed",
                                "Enabling Product Detection",
                                contract::Status::FromBits(0x80004002))));
}

TEST_F(DeviceResetTest, PollingThatCannotBeResumedIsReportedAfterTheRefresh) {
    faults->Fail({2, "ProductDetectionControl.SetPollingEnabled"}, {kFault, "no answer"});
    std::vector<std::string> log;
    messageService->whileOpen = [&] { log = Log(); };
    Reset();
    EXPECT_THAT(device->calls, ElementsAre("RequestMode(4)"));
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Enabling of product polling failed",
                                        "Enabling Product Detection", kFault, "no answer")));
    EXPECT_THAT(log, Contains("File listing updated"));
    EXPECT_FALSE(host.PollingEnabled());
}

TEST_F(DeviceResetTest, ResetWithoutControlIsReportedAsInvalidPointer) {
    EndPanel();
    panel = CKRX8Maintenance::Create(std::make_unique<headless::CHeadlessToolkit>(desktop));
    StartView();
    panel->OnCommand(kResetButton);
    const auto shown = TakeMessages();
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown[1], ErrorReport("Resetting prommer.", "Prommer Maintenance",
                                    contract::Status::FromBits(0x80004003)));
}

}
