#include "panel/device/ProgrammingDeviceControlEvents.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "simulator/Device.h"
#include "simulator/Host.h"
#include "tests/support/SampleDevices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace panel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CHandler final : public IDeviceEventHandler {
public:
    void OnModeChanged(std::int32_t mode) override {
        seen.push_back("mode " + std::to_string(mode));
        if (whileHandling) {
            whileHandling();
        }
    }
    void OnDeviceMessage(const std::string& text, std::uint32_t done,
                         std::uint32_t total) override {
        seen.push_back(text + " " + std::to_string(done) + "/" + std::to_string(total));
    }

    std::vector<std::string> seen;
    std::function<void()> whileHandling;
};

class ProgrammingDeviceControlEventsTest : public testing::Test {
protected:
    void SetUp() override {
        host.InsertDevice(simulator::CDevice::Create(support::HealthyDevice(4)));
        std::shared_ptr<contract::ISubsystem> subsystem;
        ASSERT_EQ(
            host.SubsystemAccess()->GetSubsystem(contract::kProgrammingDeviceSubsystem, subsystem),
            contract::kSuccess);
        std::shared_ptr<contract::IProgrammingDeviceSubsystem> devices;
        ASSERT_EQ(subsystem->QueryProgrammingDeviceSubsystem(devices), contract::kSuccess);
        ASSERT_EQ(devices->get_ProgrammingDeviceControl(control), contract::kSuccess);
    }

    simulator::CHost host;
    std::shared_ptr<contract::IProgrammingDeviceControl> control;
    std::shared_ptr<CHandler> handler = std::make_shared<CHandler>();
    std::shared_ptr<CProgrammingDeviceControlEvents> events =
        std::make_shared<CProgrammingDeviceControlEvents>(handler);
};

TEST_F(ProgrammingDeviceControlEventsTest, EventsReachTheHandlerWithTheirArguments) {
    ASSERT_EQ(events->Connect(control), contract::kSuccess);
    host.Device()->RaiseMode(-3);
    host.Device()->RaiseMessage("Uploading", 4294967295, 7);
    EXPECT_THAT(handler->seen, ElementsAre("mode -3", "Uploading 4294967295/7"));
}

TEST_F(ProgrammingDeviceControlEventsTest, ThirdEventIsAcceptedAndIgnored) {
    ASSERT_EQ(events->Connect(control), contract::kSuccess);
    host.Device()->RaiseEvent3(1, 2);
    EXPECT_EQ(events->Event3(1, 2), contract::kSuccess);
    EXPECT_THAT(handler->seen, IsEmpty());
}

TEST_F(ProgrammingDeviceControlEventsTest, EveryEventIsAnsweredWithSuccess) {
    EXPECT_EQ(events->ModeChanged(99), contract::kSuccess);
    EXPECT_EQ(events->DeviceMessage("", 1, 0), contract::kSuccess);
    handler.reset();
    EXPECT_EQ(events->ModeChanged(99), contract::kSuccess);
    EXPECT_EQ(events->DeviceMessage("", 1, 0), contract::kSuccess);
}

TEST_F(ProgrammingDeviceControlEventsTest, HandlerIsNotKeptAlive) {
    ASSERT_EQ(events->Connect(control), contract::kSuccess);
    EXPECT_EQ(handler.use_count(), 1);
}

TEST_F(ProgrammingDeviceControlEventsTest, HandlerLivesUntilItsEventIsHandled) {
    std::weak_ptr<CHandler> watched = handler;
    bool livedOn = false;
    handler->whileHandling = [&] {
        handler.reset();
        livedOn = !watched.expired();
    };
    EXPECT_EQ(events->ModeChanged(1), contract::kSuccess);
    EXPECT_TRUE(livedOn);
    EXPECT_TRUE(watched.expired());
}

TEST_F(ProgrammingDeviceControlEventsTest, CookieIsThatOfNoneUnlessSubscribed) {
    EXPECT_EQ(events->Cookie(), 0xFEFEFEFEu);
    ASSERT_EQ(events->Connect(control), contract::kSuccess);
    EXPECT_NE(events->Cookie(), 0xFEFEFEFEu);
    events->Disconnect(control);
    EXPECT_EQ(events->Cookie(), 0xFEFEFEFEu);
    EXPECT_EQ(host.DeviceSubscriberCount(), 0u);
}

TEST_F(ProgrammingDeviceControlEventsTest, ConnectToNothingFailsWithInvalidPointer) {
    EXPECT_EQ(events->Connect(nullptr), contract::Status::FromBits(0x80004003));
    EXPECT_EQ(events->Cookie(), 0xFEFEFEFEu);
}

TEST_F(ProgrammingDeviceControlEventsTest, NoEventComesAfterDisconnecting) {
    ASSERT_EQ(events->Connect(control), contract::kSuccess);
    events->Disconnect(control);
    host.Device()->RaiseMode(2);
    EXPECT_THAT(handler->seen, IsEmpty());
}

}
}
