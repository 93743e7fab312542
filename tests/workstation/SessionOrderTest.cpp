#include "tests/workstation/Devices.h"
#include "tests/workstation/RecordingPanel.h"
#include "tests/workstation/Until.h"
#include "workstation/PanelHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QWidget>

#include <optional>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::shared_ptr<simulator::CDevice> Device(std::int32_t serialNumber) {
    simulator::DeviceDescription description = HealthyDevice();
    description.serialNumber = serialNumber;
    return simulator::CDevice::Create(description);
}

/// What a panel is told, and in which order.
class SessionOrderTest : public testing::Test {
protected:
    SessionOrderTest() {
        m_panelHost.emplace(std::make_shared<RecordingPanel>(m_calls), m_observer);
        m_panelHost->CreateView(m_parent);
    }

    void Start(std::shared_ptr<simulator::CDevice> device) {
        m_panelHost->Start(device ? "first" : "", std::move(device));
        ExpectIdle();
    }
    /// For what comes after the start.
    void StartSilently(std::shared_ptr<simulator::CDevice> device) {
        Start(std::move(device));
        m_calls.clear();
    }
    void ExpectIdle() {
        EXPECT_TRUE(Until([this] { return m_panelHost->IsIdle(); }));
    }

    QWidget m_parent;
    workstation::IPanelHostObserver m_observer;
    std::vector<std::string> m_calls;
    std::optional<workstation::CPanelHost> m_panelHost;
};

TEST_F(SessionOrderTest, StartWithADeviceGivesTheSignalOnceAndNoState) {
    Start(Device(1));
    EXPECT_THAT(m_calls, ElementsAre("SetContextAndRegister", "CreateView",
                                     "SetSubsystemAccess, device 1", "SetConnection", "Go"));
}

TEST_F(SessionOrderTest, StartWithoutADeviceGivesTheSignalOnce) {
    Start(nullptr);
    EXPECT_THAT(m_calls, ElementsAre("SetContextAndRegister", "CreateView",
                                     "SetSubsystemAccess, no device", "SetConnection", "Go"));
}

TEST_F(SessionOrderTest, NothingIsHandedOverBeforeTheEventLoop) {
    m_panelHost->Start("first", Device(1));
    EXPECT_THAT(m_calls, ElementsAre("SetContextAndRegister", "CreateView"));
}

TEST_F(SessionOrderTest, LaterDeviceIsToldByState7Alone) {
    StartSilently(nullptr);
    m_panelHost->Connect("second", Device(2));
    ExpectIdle();
    EXPECT_THAT(m_calls, ElementsAre("state 7, device 2"));
}

TEST_F(SessionOrderTest, AnotherDeviceComesBetweenState5AndState7) {
    StartSilently(Device(1));
    m_panelHost->Connect("second", Device(2));
    ExpectIdle();
    EXPECT_THAT(m_calls, ElementsAre("state 5, device 1", "state 7, device 2"));
}

TEST_F(SessionOrderTest, DisconnectingTellsState5Once) {
    StartSilently(Device(1));
    m_panelHost->Disconnect();
    m_panelHost->Disconnect();
    ExpectIdle();
    EXPECT_THAT(m_calls, ElementsAre("state 5, device 1"));
}

TEST_F(SessionOrderTest, RequestsInARowAreCarriedOutInTheirOrder) {
    m_panelHost->Start("first", Device(1));
    m_panelHost->Disconnect();
    m_panelHost->Connect("second", Device(2));
    EXPECT_FALSE(m_panelHost->IsIdle());
    ExpectIdle();
    EXPECT_THAT(m_calls,
                ElementsAre("SetContextAndRegister", "CreateView", "SetSubsystemAccess, device 1",
                            "SetConnection", "Go", "state 5, device 1", "state 7, device 2"));
}

TEST_F(SessionOrderTest, EndDestroysTheViewBeforeThePanelIsReleased) {
    StartSilently(Device(1));
    m_panelHost.reset();
    EXPECT_THAT(m_calls, ElementsAre("DestroyView", "released"));
}

TEST_F(SessionOrderTest, LostDeviceThatIsReplacedIsNotToldTwice) {
    simulator::DeviceDescription leaving = HealthyDevice();
    leaving.loss = simulator::DeviceLoss{"HardwareInfo.GetSerialNumber", 1, {}};
    StartSilently(nullptr);
    m_panelHost->Connect("leaving", simulator::CDevice::Create(leaving));
    ExpectIdle();
    m_panelHost->Connect("second", Device(2));
    ExpectIdle();
    EXPECT_THAT(m_calls,
                ElementsAre("state 7, no device", "state 5, no device", "state 7, device 2"));
}

TEST_F(SessionOrderTest, ReconnectingALostDeviceTellsState7) {
    simulator::DeviceDescription leaving = HealthyDevice();
    leaving.serialNumber = 3;
    leaving.loss = simulator::DeviceLoss{"HardwareInfo.GetSerialNumber", 1, {}};
    StartSilently(nullptr);
    m_panelHost->Connect("leaving", simulator::CDevice::Create(leaving));
    ExpectIdle();
    m_panelHost->Reconnect();
    ExpectIdle();
    EXPECT_THAT(m_calls,
                ElementsAre("state 7, no device", "state 5, no device", "state 7, device 3"));
}

}
