#include "workstation/PanelHost.h"

#include "tests/workstation/Devices.h"
#include "tests/workstation/Until.h"
#include "workstation/PanelFactory.h"
#include "workstation/PromptAnswerer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

/// What a device that names no package version is offered.
constexpr const char* kUpdateOffer = "Would you like to update the Programming Device now?";

/// Keeps what a panel's host tells.
class RecordingObserver : public workstation::IPanelHostObserver {
public:
    void CallReturned(const interception::Operation& operation) override {
        m_calls.emplace_back(operation.name);
    }
    void CallLasts(const interception::Operation& operation) override {
        m_lasting.emplace_back(operation.name);
    }
    void ConnectionChanged() override { ++m_connectionChanges; }
    void ProgressReported(const std::string& text, std::uint32_t, std::uint32_t) override {
        m_progress.push_back(text);
    }
    void CloseRequested() override { ++m_closeRequests; }

    auto CountOf(const std::string& operation) const {
        return std::ranges::count(m_calls, operation);
    }

    std::vector<std::string> m_calls;
    std::vector<std::string> m_lasting;
    std::vector<std::string> m_progress;
    int m_connectionChanges = 0;
    int m_closeRequests = 0;
};

class PanelHostTest : public testing::Test {
protected:
    PanelHostTest() {
        m_panelHost.CreateView(m_parent);
        m_parent.show();
    }

    void StartWith(std::shared_ptr<simulator::CDevice> device) {
        const std::string name = device ? "first" : "";
        m_panelHost.Start(name, std::move(device));
        ExpectIdle();
    }
    void Connect(std::shared_ptr<simulator::CDevice> device) {
        m_panelHost.Connect("second", std::move(device));
        ExpectIdle();
    }
    void ExpectIdle() {
        EXPECT_TRUE(Until([this] { return m_panelHost.IsIdle(); }));
    }

    /// Three files, and gone for good in the first call of that operation.
    static std::shared_ptr<simulator::CDevice> LeavingDevice(const char* operation) {
        simulator::DeviceDescription leaving = HealthyDevice(3);
        leaving.loss = simulator::DeviceLoss{operation, 1, {}};
        return simulator::CDevice::Create(leaving);
    }

    /// Two files, and the first call of that operation fails.
    static simulator::DeviceDescription FailingDevice(const char* operation) {
        simulator::DeviceDescription failing = HealthyDevice();
        simulator::Fault fault;
        fault.operation = operation;
        failing.faults.push_back(fault);
        return failing;
    }
    static std::shared_ptr<simulator::CDevice> OtherDevice() {
        simulator::DeviceDescription other = HealthyDevice(5);
        other.network.macAddress = "00-00-5E-00-53-99";
        return simulator::CDevice::Create(other);
    }

    auto Refreshes() const { return m_observer.CountOf("SoftwareInfo.GetBootSwVersion"); }
    template <class Widget = QWidget>
    Widget* Control(int id) const {
        return m_parent.findChild<Widget*>(QString("control-%1").arg(id));
    }
    QString SerialNumber() const { return Control<QLineEdit>(211)->text(); }
    int ListedFiles() {
        auto* const list = Control<QAbstractItemView>(224);
        list->grab(); // what is listed is shown when it is painted
        return list->model()->rowCount();
    }

    QWidget m_parent;
    RecordingObserver m_observer;
    workstation::CPanelHost m_panelHost{workstation::CreatePanel(), m_observer};
    std::vector<std::string> m_boxes;
    workstation::CPromptAnswerer m_answerer{
        m_parent, [this](const std::string& box) { m_boxes.push_back(box); }};
};

TEST_F(PanelHostTest, StartWithDeviceCostsOneRefresh) {
    StartWith(MakeDevice(3));
    EXPECT_EQ(Refreshes(), 1);
    EXPECT_EQ(SerialNumber(), "00-00-5E-00-53-07");
    EXPECT_EQ(ListedFiles(), 3);
    EXPECT_TRUE(m_panelHost.IsConnected());
    EXPECT_EQ(m_panelHost.DeviceName(), "first");
    EXPECT_THAT(m_boxes, IsEmpty());
}

TEST_F(PanelHostTest, StartWithoutDeviceReadsNothing) {
    StartWith(nullptr);
    EXPECT_EQ(Refreshes(), 0);
    EXPECT_FALSE(m_panelHost.IsConnected());
    EXPECT_THAT(m_boxes, IsEmpty());
}

TEST_F(PanelHostTest, DeviceConnectedLaterCostsOneRefresh) {
    StartWith(nullptr);
    Connect(MakeDevice(3));
    EXPECT_EQ(Refreshes(), 1);
    EXPECT_EQ(ListedFiles(), 3);
    EXPECT_EQ(m_panelHost.DeviceName(), "second");
}

TEST_F(PanelHostTest, AnotherDeviceCostsOneRefreshAndIsShown) {
    StartWith(MakeDevice(3));
    Connect(OtherDevice());
    EXPECT_EQ(Refreshes(), 2);
    EXPECT_EQ(SerialNumber(), "00-00-5E-00-53-99");
    EXPECT_EQ(ListedFiles(), 5);
    EXPECT_THAT(m_boxes, IsEmpty());
}

TEST_F(PanelHostTest, AnotherDeviceIsAskedForItsOwnMode) {
    StartWith(MakeDevice());
    simulator::DeviceDescription other = HealthyDevice();
    other.mode = simulator::kServiceMode;
    Connect(simulator::CDevice::Create(other));
    EXPECT_EQ(m_observer.CountOf("ProgrammingDeviceControl.RequestMode"), 2);
    // Outside Normal mode no file is listed, so that no version is found either.
    EXPECT_THAT(m_boxes, ElementsAre(HasSubstr("not in Normal mode"), HasSubstr(kUpdateOffer)));
}

TEST_F(PanelHostTest, DisconnectDisablesThePanel) {
    StartWith(MakeDevice());
    EXPECT_TRUE(Control(224)->isEnabled());
    m_panelHost.Disconnect();
    ExpectIdle();
    EXPECT_FALSE(Control(224)->isEnabled());
    EXPECT_FALSE(m_panelHost.IsConnected());
    EXPECT_EQ(m_panelHost.DeviceName(), "");
}

TEST_F(PanelHostTest, DeviceLostDuringARefreshIsGoneAfterIt) {
    StartWith(nullptr);
    simulator::DeviceDescription leaving = HealthyDevice();
    leaving.loss = simulator::DeviceLoss{"ProgrammingDeviceControl.GetFileListing", 1, {}};
    Connect(simulator::CDevice::Create(leaving));
    EXPECT_FALSE(m_panelHost.IsConnected());
    EXPECT_FALSE(Control(224)->isEnabled());
    EXPECT_THAT(m_boxes,
                ElementsAre(HasSubstr("File listing query failed"), HasSubstr(kUpdateOffer)));
}

TEST_F(PanelHostTest, ReconnectBringsALostDeviceBackAndReadsIt) {
    StartWith(LeavingDevice("ProgrammingDeviceControl.GetFileListing"));
    EXPECT_EQ(ListedFiles(), 0);
    m_panelHost.Reconnect();
    ExpectIdle();
    EXPECT_TRUE(m_panelHost.IsConnected());
    EXPECT_TRUE(Control(224)->isEnabled());
    EXPECT_EQ(Refreshes(), 2);
    EXPECT_EQ(ListedFiles(), 3);
}

TEST_F(PanelHostTest, DeviceLostBeforeThePanelListensIsGone) {
    StartWith(LeavingDevice("ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl"));
    EXPECT_FALSE(m_panelHost.IsConnected());
    EXPECT_EQ(m_panelHost.DeviceName(), "first");
    EXPECT_EQ(Refreshes(), 0);
}

TEST_F(PanelHostTest, ReconnectWithoutALostDeviceDoesNothing) {
    StartWith(MakeDevice());
    m_panelHost.Reconnect();
    ExpectIdle();
    EXPECT_EQ(Refreshes(), 1);
    m_panelHost.Disconnect();
    m_panelHost.Reconnect();
    ExpectIdle();
    EXPECT_FALSE(m_panelHost.IsConnected());
    EXPECT_EQ(Refreshes(), 1);
}

TEST_F(PanelHostTest, DeviceThatComesBackIsReadAgainAfterTheRefresh) {
    StartWith(nullptr);
    simulator::DeviceDescription leaving = HealthyDevice(3);
    leaving.loss = simulator::DeviceLoss{"SoftwareInfo.GetBootSwVersion", 1, 2};
    Connect(simulator::CDevice::Create(leaving));
    EXPECT_TRUE(m_panelHost.IsConnected());
    EXPECT_TRUE(Control(224)->isEnabled());
    EXPECT_EQ(Refreshes(), 2);
    EXPECT_EQ(ListedFiles(), 3);
}

TEST_F(PanelHostTest, SlowDeviceIsReportedWhileItWorks) {
    simulator::DeviceDescription slow = HealthyDevice();
    slow.latency.operationsMs["ProgrammingDeviceControl.GetFileListing"] = 60;
    StartWith(simulator::CDevice::Create(slow));
    EXPECT_THAT(m_observer.m_lasting, Contains("ProgrammingDeviceControl.GetFileListing"));
}

TEST_F(PanelHostTest, SlowConnectionKeepsTheWindowPainted) {
    simulator::DeviceDescription slow = HealthyDevice();
    slow.latency.operationsMs["ConnectionState.IsConnected"] = 60;
    StartWith(simulator::CDevice::Create(slow));
    EXPECT_THAT(m_observer.m_lasting, Contains("ConnectionState.IsConnected"));
    EXPECT_EQ(Refreshes(), 1);
}

TEST_F(PanelHostTest, CallsOfTheContextStayWithTheWindow) {
    StartWith(MakeDevice());
    Control<QPushButton>(230)->click();
    EXPECT_EQ(m_observer.m_closeRequests, 1);
    EXPECT_THAT(m_observer.m_calls, Not(Contains(StartsWith("Context."))));
    EXPECT_THAT(m_observer.m_calls, Not(Contains(StartsWith("HostViewControl."))));
}

TEST_F(PanelHostTest, DeviceMessagesAreReportedAsProgress) {
    const auto device = MakeDevice();
    StartWith(device);
    device->RaiseMessage("Uploading", 1, 2);
    EXPECT_THAT(m_observer.m_progress, ElementsAre("Uploading"));
}

TEST_F(PanelHostTest, CloseButtonAsksAndTheViewOutlivesTheRequest) {
    StartWith(MakeDevice());
    Control<QPushButton>(230)->click();
    EXPECT_EQ(m_observer.m_closeRequests, 1);
    EXPECT_NE(Control(230), nullptr);
}

TEST_F(PanelHostTest, FailingDeviceIsReportedWithItsDescription) {
    simulator::DeviceDescription failing = HealthyDevice();
    simulator::Fault fault;
    fault.operation = "ProgrammingDeviceControl.GetSoftwareInfo";
    fault.description = "The cable is broken";
    failing.faults.push_back(fault);
    StartWith(simulator::CDevice::Create(failing));
    ASSERT_THAT(m_boxes, SizeIs(1));
    EXPECT_EQ(m_boxes[0], "Box \"Prommer Maintenance\":\n"
                          "    Software Info request failed\n"
                          "    HRESULT 0x80004005 (-2147467259)\n"
                          "    The cable is broken\n"
                          "Answered: OK\n");
}

TEST_F(PanelHostTest, DeviceAfterAFailedSubscriptionIsShown) {
    StartWith(simulator::CDevice::Create(FailingDevice("ExtConnectionEvents.Subscribe")));
    EXPECT_EQ(SerialNumber(), "00-00-5E-00-53-07");
    Connect(OtherDevice());
    EXPECT_EQ(Refreshes(), 2);
    EXPECT_EQ(SerialNumber(), "00-00-5E-00-53-99");
    EXPECT_EQ(ListedFiles(), 5);
    EXPECT_THAT(m_boxes, IsEmpty());
}

TEST_F(PanelHostTest, DeviceAfterAFailedHandOverIsShown) {
    StartWith(simulator::CDevice::Create(FailingDevice("SubsystemAccess.GetSubsystem")));
    EXPECT_EQ(SerialNumber(), "");
    Connect(OtherDevice());
    EXPECT_EQ(Refreshes(), 1);
    EXPECT_EQ(SerialNumber(), "00-00-5E-00-53-99");
    EXPECT_EQ(ListedFiles(), 5);
    EXPECT_THAT(m_boxes,
                ElementsAre(HasSubstr("Connecting to KxProgrammingDevice subsystem failed")));
}

TEST_F(PanelHostTest, LostDeviceThatFailedTheSubscriptionIsShownAgain) {
    simulator::DeviceDescription failing = FailingDevice("ExtConnectionEvents.Subscribe");
    failing.loss = simulator::DeviceLoss{"ProgrammingDeviceControl.GetFileListing", 1, {}};
    StartWith(simulator::CDevice::Create(failing));
    EXPECT_EQ(ListedFiles(), 0);
    m_panelHost.Reconnect();
    ExpectIdle();
    EXPECT_EQ(Refreshes(), 2);
    EXPECT_EQ(ListedFiles(), 2);
}

TEST_F(PanelHostTest, WatchThatFailedIsMadeForTheNextDevice) {
    simulator::DeviceDescription failing = HealthyDevice();
    simulator::Fault fault;
    fault.operation = "ProgrammingDeviceControlEvents.Subscribe";
    fault.call = 2; // the panel's own subscription is the first
    failing.faults.push_back(fault);
    StartWith(simulator::CDevice::Create(failing));
    const auto other = OtherDevice();
    Connect(other);
    other->RaiseMessage("Uploading", 1, 2);
    EXPECT_THAT(m_observer.m_progress, ElementsAre("Uploading"));
}

TEST_F(PanelHostTest, MendedConnectionIsHeardOnce) {
    StartWith(simulator::CDevice::Create(FailingDevice("ExtConnectionEvents.Subscribe")));
    Connect(OtherDevice());
    Connect(MakeDevice(3));
    EXPECT_EQ(Refreshes(), 3);
}

}
