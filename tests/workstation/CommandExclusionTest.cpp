#include "tests/workstation/Devices.h"
#include "tests/workstation/Until.h"
#include "workstation/PanelFactory.h"
#include "workstation/PanelHost.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace {

/// Counts what the panel's Close button asks for: a command that can be seen without a device.
class CommandCounter : public workstation::IPanelHostObserver {
public:
    void CallLasts(const interception::Operation&) override { ++m_lastingCalls; }
    void CloseRequested() override { ++m_commands; }

    int m_lastingCalls = 0;
    int m_commands = 0;
};

/// As an accessibility tool does it: the click follows some 100 ms later.
void PressAsATool(QPushButton& button) {
    QAccessible::queryAccessibleInterface(&button)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
}

simulator::DeviceDescription SlowDevice() {
    simulator::DeviceDescription slow = HealthyDevice();
    slow.latency.operationsMs["ProgrammingDeviceControl.GetFileListing"] = 400;
    return slow;
}

simulator::DeviceDescription DeviceThatGetsABox() {
    simulator::DeviceDescription device = HealthyDevice();
    simulator::Fault fault;
    fault.operation = "ProgrammingDeviceControl.GetSoftwareInfo";
    device.faults.push_back(fault);
    return device;
}

simulator::DeviceDescription DeviceWithDetails() {
    simulator::DeviceDescription device = HealthyDevice();
    device.selfTests[contract::SelfTest::Ram] = 1;
    return device;
}

/// Presses buttons of the panel, without input events, at moments when no command may start.
class CommandExclusionTest : public testing::Test {
protected:
    CommandExclusionTest() {
        m_panelHost.CreateView(m_parent);
        m_parent.show();
        QObject::connect(&Button(230), &QPushButton::clicked, [this] {
            ++m_clicks;
            m_wasIdleAtAClick |= m_panelHost.IsIdle();
        });
    }

    void Start(const simulator::DeviceDescription& device) {
        m_panelHost.Start("device", simulator::CDevice::Create(device));
    }
    bool UntilIdle() {
        return Until([this] { return m_panelHost.IsIdle(); });
    }
    /// Does it once, from the event loop, as soon as the condition holds.
    void When(std::function<bool()> condition, std::function<void()> act) {
        QObject::connect(&m_trial, &QTimer::timeout, [this, condition, act] {
            if (condition()) {
                m_trial.stop();
                act();
            }
        });
        m_trial.start(1);
    }
    QPushButton& Button(int id) const {
        return *m_parent.findChild<QPushButton*>(QString("control-%1").arg(id));
    }
    template <class Window>
    static Window* OpenModal() {
        return qobject_cast<Window*>(QApplication::activeModalWidget());
    }

    QWidget m_parent;
    CommandCounter m_observer;
    QTimer m_trial;
    int m_clicks = 0;
    bool m_wasIdleAtAClick = false;
    workstation::CPanelHost m_panelHost{workstation::CreatePanel(), m_observer};
};

TEST_F(CommandExclusionTest, PressDuringADeviceCallStartsNoCommand) {
    Start(SlowDevice());
    When([this] { return m_observer.m_lastingCalls > 0; },
         [this] {
             Button(230).click();
             PressAsATool(Button(230));
         });
    ASSERT_TRUE(Until([this] { return m_clicks == 2; }));
    ASSERT_TRUE(UntilIdle());
    EXPECT_FALSE(m_wasIdleAtAClick) << "both clicks came during the call";
    EXPECT_EQ(m_observer.m_commands, 0);
}

TEST_F(CommandExclusionTest, PressAfterTheCallStartsItsCommand) {
    Start(SlowDevice());
    ASSERT_TRUE(UntilIdle());
    PressAsATool(Button(230));
    EXPECT_TRUE(Until([this] { return m_observer.m_commands == 1; }));
}

TEST_F(CommandExclusionTest, OpenBoxIsAllThatTakesPresses) {
    Start(DeviceThatGetsABox());
    When([] { return OpenModal<QMessageBox>() != nullptr; },
         [this] {
             Button(230).click();
             PressAsATool(
                 *qobject_cast<QPushButton*>(OpenModal<QMessageBox>()->button(QMessageBox::Ok)));
         });
    ASSERT_TRUE(Until([this] { return m_clicks == 1; }));
    EXPECT_TRUE(UntilIdle()) << "the box has been closed by its button";
    EXPECT_EQ(m_observer.m_commands, 0);
}

TEST_F(CommandExclusionTest, OpenDialogIsAllThatTakesPresses) {
    Start(DeviceWithDetails());
    ASSERT_TRUE(UntilIdle());
    When([] { return OpenModal<QDialog>() != nullptr; },
         [this] {
             Button(230).click();
             PressAsATool(*OpenModal<QDialog>()->findChild<QPushButton*>("control-1"));
         });
    Button(222).click();
    EXPECT_EQ(m_clicks, 1);
    EXPECT_EQ(OpenModal<QDialog>(), nullptr) << "the dialog has been closed by its button";
    EXPECT_EQ(m_observer.m_commands, 0);
}

TEST_F(CommandExclusionTest, OpenMenuKeepsPressesFromThePanel) {
    Start(HealthyDevice());
    ASSERT_TRUE(UntilIdle());
    QWidget menu(&m_parent, Qt::Popup);
    menu.show();
    Button(230).click();
    menu.hide();
    EXPECT_EQ(m_observer.m_commands, 0);
    Button(230).click();
    EXPECT_EQ(m_observer.m_commands, 1);
}

}
