#include "simulator/Device.h"

#include "tests/simulator/Answers.h"
#include "tests/simulator/EventLog.h"

namespace simulator {
namespace {

using contract::ModeRequest;

class DeviceTest : public testing::Test {
protected:
    void MakeDevice(DeviceDescription description) {
        m_device = CDevice::Create(std::move(description));
        m_device->SendEventsTo(m_events);
    }
    void MakeDeviceWithFiles(std::vector<StoredFile> files) {
        DeviceDescription description;
        description.totalRamBytes = 1000;
        description.totalFlashBytes = 4294967295;
        description.files = std::move(files);
        MakeDevice(std::move(description));
    }
    void MakeDeviceInMode(std::int32_t mode) {
        DeviceDescription description;
        description.mode = mode;
        MakeDevice(std::move(description));
    }
    static StoredFile FileOf(std::int32_t sizeBytes, std::int32_t location) {
        return {"a.fia", 22, 1, "1.0", sizeBytes, location, 0, ""};
    }
    void SetUp() override {
        std::uint32_t cookie = 0;
        ASSERT_EQ(m_events->Subscribe(m_log, cookie), contract::kSuccess);
    }

    const std::shared_ptr<CDeviceEvents> m_events = std::make_shared<CDeviceEvents>();
    const std::shared_ptr<CEventLog> m_log = std::make_shared<CEventLog>();
    std::shared_ptr<CDevice> m_device;
};

TEST_F(DeviceTest, FreeMemoryWithoutFilesIsTheWhole) {
    MakeDeviceWithFiles({});
    EXPECT_EQ(m_device->FreeRamBytes(), 1000u);
    EXPECT_EQ(m_device->FreeFlashBytes(), 4294967295u);
}

TEST_F(DeviceTest, FreeMemoryCountsTheFilesOfThatMemory) {
    MakeDeviceWithFiles({FileOf(300, kInRam), FileOf(95, kInFlash), FileOf(200, kInRam),
                         FileOf(500, kOnPcCard), FileOf(700, 9)});
    EXPECT_EQ(m_device->FreeRamBytes(), 500u);
    EXPECT_EQ(m_device->FreeFlashBytes(), 4294967200u);
}

TEST_F(DeviceTest, FreeMemoryOfOverfullDeviceIsZero) {
    MakeDeviceWithFiles({FileOf(600, kInRam), FileOf(600, kInRam)});
    EXPECT_EQ(m_device->FreeRamBytes(), 0u);
}

TEST_F(DeviceTest, FreeMemoryExactlyUsedUpIsZero) {
    MakeDeviceWithFiles({FileOf(1000, kInRam)});
    EXPECT_EQ(m_device->FreeRamBytes(), 0u);
}

TEST_F(DeviceTest, FreeMemoryOfThreeLargestFilesIsZero) {
    MakeDeviceWithFiles(
        {FileOf(2147483647, kInFlash), FileOf(2147483647, kInFlash), FileOf(2147483647, kInFlash)});
    EXPECT_EQ(m_device->FreeFlashBytes(), 0u);
}

TEST_F(DeviceTest, FreeMemoryWithNegativeSizeIsAtMostTheWhole) {
    MakeDeviceWithFiles({FileOf(-5, kInRam)});
    EXPECT_EQ(m_device->FreeRamBytes(), 1000u);
}

TEST_F(DeviceTest, RequestReportRaisesTheMode) {
    MakeDeviceInMode(2);
    EXPECT_EQ(m_device->RequestMode(ModeRequest::Report), contract::kSuccess);
    EXPECT_EQ(m_log->events, Events{"mode 2"});
}

TEST_F(DeviceTest, RequestNormalSwitchesThenRaises) {
    MakeDeviceInMode(3);
    std::int32_t modeInEvent = 0;
    m_log->onEvent = [&] { modeInEvent = m_device->Mode(); };
    EXPECT_EQ(m_device->RequestMode(ModeRequest::Normal), contract::kSuccess);
    EXPECT_EQ(m_log->events, Events{"mode 1"});
    EXPECT_EQ(modeInEvent, 1);
}

TEST_F(DeviceTest, RequestNormalWithFailedApplicationIsRefused) {
    DeviceDescription description;
    description.mode = kServiceMode;
    description.selfTests[contract::SelfTest::ApplicationSw] = 1;
    MakeDevice(description);
    ExpectFailure(m_device->RequestMode(ModeRequest::Normal), 0x80070015,
                  "The device stays out of Normal mode: its application software failed the "
                  "self-test");
    EXPECT_EQ(m_log->events, Events{});
    EXPECT_EQ(m_device->Mode(), 2);
}

TEST_F(DeviceTest, RequestNormalInNormalModeAsksNoTest) {
    DeviceDescription description;
    description.selfTests[contract::SelfTest::ApplicationSw] = 1;
    MakeDevice(description);
    EXPECT_EQ(m_device->RequestMode(ModeRequest::Normal), contract::kSuccess);
    EXPECT_EQ(m_log->events, Events{"mode 1"});
}

TEST_F(DeviceTest, ResetPassesThroughMaintenanceToTheStartingMode) {
    MakeDeviceInMode(2);
    EXPECT_EQ(m_device->RequestMode(ModeRequest::Reset), contract::kSuccess);
    EXPECT_EQ(m_log->events, (Events{"mode 3", "mode 2"}));
    EXPECT_EQ(m_device->Mode(), 2);
}

TEST_F(DeviceTest, ResetEndsMaintenance) {
    MakeDeviceInMode(3);
    EXPECT_EQ(m_device->RequestMode(ModeRequest::Reset), contract::kSuccess);
    EXPECT_EQ(m_log->events, (Events{"mode 3", "mode 1"}));
    EXPECT_EQ(m_device->Description().mode, 1);
}

TEST_F(DeviceTest, ResetForgetsAModeThatWasOnlyEntered) {
    MakeDeviceInMode(1);
    m_device->EnterMode(2);
    EXPECT_EQ(m_device->RequestMode(ModeRequest::Reset), contract::kSuccess);
    EXPECT_EQ(m_log->events, (Events{"mode 2", "mode 3", "mode 1"}));
}

TEST_F(DeviceTest, ChangeLeavesAListThatWasHandedOut) {
    MakeDeviceWithFiles({FileOf(300, kInRam)});
    const auto before = m_device->Files();
    auto next = m_device->State();
    next.files.clear();
    EXPECT_FALSE(m_device->Change(next));
    EXPECT_EQ(before->size(), 1u);
    EXPECT_TRUE(m_device->Files()->empty());
}

TEST_F(DeviceTest, RequestUnknownModeFailsSilently) {
    MakeDeviceInMode(1);
    ExpectFailure(m_device->RequestMode(static_cast<ModeRequest>(9)), 0x80070057,
                  "Unknown mode request 9");
    EXPECT_EQ(m_log->events, Events{});
}

TEST_F(DeviceTest, EnterModeStoresAndRaises) {
    MakeDeviceInMode(1);
    m_device->EnterMode(7);
    EXPECT_EQ(m_device->Mode(), 7);
    EXPECT_EQ(m_log->events, Events{"mode 7"});
}

TEST_F(DeviceTest, RaisingChangesNothing) {
    MakeDeviceInMode(1);
    m_device->RaiseMode(-4);
    m_device->RaiseMessage("Erasing", 4294967295, 1);
    m_device->RaiseEvent3(5, -6);
    EXPECT_EQ(m_device->Mode(), 1);
    EXPECT_EQ(m_log->events, (Events{"mode -4", "message Erasing 4294967295/1", "event3 5 -6"}));
}

TEST_F(DeviceTest, RaisingWithoutListenersIsSafe) {
    MakeDeviceInMode(1);
    m_device->SendEventsTo({});
    m_device->EnterMode(2);
    EXPECT_EQ(m_log->events, Events{});
    EXPECT_EQ(m_device->Mode(), 2);
}

}
}
