#include "workstation/MainWindow.h"

#include "tests/workstation/Devices.h"
#include "tests/workstation/Until.h"
#include "workstation/PanelFactory.h"
#include "workstation/PanelPicture.h"
#include "workstation/PromptAnswerer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::SizeIs;
using workstation::OpenedDevice;

/// Copies of two samples under one root.
class MainWindowTest : public testing::Test {
protected:
    MainWindowTest() {
        for (const char* sample : {"krx-20", "krx-8"}) {
            std::filesystem::copy(std::filesystem::path(KRX8_SAMPLES) / sample, Root() / sample,
                                  std::filesystem::copy_options::recursive);
        }
        m_window = std::make_unique<workstation::CMainWindow>(workstation::CreatePanel(), Root());
        m_answerer = std::make_unique<workstation::CPromptAnswerer>(
            *m_window, [this](const std::string& box) { m_boxes.push_back(box); });
        m_window->show();
    }

    std::filesystem::path Root() const { return m_root.path().toStdString(); }
    void Start(std::shared_ptr<simulator::CDevice> device) {
        m_window->Start(OpenedDevice{"/elsewhere/bench device", std::move(device)});
    }
    void ExpectIdle() {
        EXPECT_TRUE(Until([this] { return m_window->IsIdle(); }));
    }
    template <class Widget>
    Widget& Find(const char* name) const {
        return *m_window->findChild<Widget*>(name);
    }
    QListWidget& Devices() const { return Find<QListWidget>("devices"); }
    std::string StatusText(const char* name) const {
        return Find<QLabel>(name).text().toStdString();
    }
    headless::TextPicture Picture() {
        return workstation::ReadPanelPicture(m_window->PanelHolder());
    }

    QTemporaryDir m_root;
    std::vector<std::string> m_boxes;
    std::unique_ptr<workstation::CMainWindow> m_window;
    std::unique_ptr<workstation::CPromptAnswerer> m_answerer;
};

TEST_F(MainWindowTest, DevicesUnderTheRootAreListed) {
    ASSERT_EQ(Devices().count(), 2);
    EXPECT_EQ(Devices().item(0)->text(), "krx-20");
    EXPECT_EQ(Devices().item(1)->text(), "krx-8");
}

TEST_F(MainWindowTest, WithoutDeviceSaysSo) {
    m_window->Start({});
    ExpectIdle();
    EXPECT_EQ(m_window->windowTitle(), "KRX-8 Maintenance Workstation");
    EXPECT_EQ(StatusText("device"), "No device connected");
    EXPECT_EQ(StatusText("polling"), "Phone polling: on");
    EXPECT_FALSE(Find<QPushButton>("disconnect").isEnabled());
}

TEST_F(MainWindowTest, DeviceOfTheStartIsListedAndMarked) {
    Start(MakeDevice());
    ExpectIdle();
    ASSERT_EQ(Devices().count(), 3);
    EXPECT_EQ(Devices().item(0)->text(), "bench device");
    EXPECT_TRUE(Devices().item(0)->font().bold());
    EXPECT_FALSE(Devices().item(1)->font().bold());
    EXPECT_EQ(Devices().currentRow(), 0);
    EXPECT_EQ(m_window->windowTitle(), "KRX-8 Maintenance Workstation - bench device");
    EXPECT_EQ(StatusText("device"), "bench device connected");
}

/// Notes the title that a window has when it is painted.
class CPaintWatch final : public QObject {
public:
    explicit CPaintWatch(QWidget& window) : m_window(window) { window.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            titles.push_back(m_window.windowTitle().toStdString());
        }
        return false;
    }

    std::vector<std::string> titles;

private:
    QWidget& m_window;
};

TEST_F(MainWindowTest, StartWaitsUntilTheWindowIsPainted) {
    const CPaintWatch watch(*m_window);
    Start(MakeDevice());
    EXPECT_FALSE(m_window->IsIdle());
    ExpectIdle();
    ASSERT_FALSE(watch.titles.empty());
    EXPECT_EQ(watch.titles.front(), "KRX-8 Maintenance Workstation");
    EXPECT_EQ(m_window->windowTitle(), "KRX-8 Maintenance Workstation - bench device");
}

TEST_F(MainWindowTest, StartOfAnUnseenWindowConnectsTheDevice) {
    m_window->hide();
    const CPaintWatch watch(*m_window);
    Start(MakeDevice());
    ExpectIdle();
    EXPECT_THAT(watch.titles, SizeIs(0));
    EXPECT_EQ(StatusText("device"), "bench device connected");
}

TEST_F(MainWindowTest, ConnectButtonConnectsTheChosenDevice) {
    m_window->Start({});
    Devices().setCurrentRow(0);
    Find<QPushButton>("connect").click();
    ExpectIdle();
    EXPECT_EQ(Picture().title, "KRX-20 Info");
    EXPECT_EQ(StatusText("device"), "krx-20 connected");
    EXPECT_TRUE(Find<QPushButton>("disconnect").isEnabled());
}

TEST_F(MainWindowTest, ActivatingAnotherDeviceSwitchesToIt) {
    Start(MakeDevice());
    Devices().setCurrentRow(2);
    emit Devices().itemActivated(Devices().item(2));
    ExpectIdle();
    EXPECT_EQ(Picture().title, "KRX-8 Info");
    EXPECT_EQ(StatusText("device"), "krx-8 connected");
}

TEST_F(MainWindowTest, DisconnectButtonDisconnects) {
    Start(MakeDevice());
    ExpectIdle();
    Find<QPushButton>("disconnect").click();
    ExpectIdle();
    EXPECT_EQ(StatusText("device"), "No device connected");
    EXPECT_EQ(m_window->windowTitle(), "KRX-8 Maintenance Workstation");
}

TEST_F(MainWindowTest, LostDeviceIsShownAsGoneAndComesBackWhenChosenAgain) {
    simulator::DeviceDescription leaving = HealthyDevice();
    leaving.loss = simulator::DeviceLoss{"ProgrammingDeviceControl.GetFileListing", 1, {}};
    Start(simulator::CDevice::Create(leaving));
    ExpectIdle();
    EXPECT_EQ(Devices().item(0)->text(), "bench device (gone)");
    EXPECT_EQ(Find<QPushButton>("connect").text(), "Rec&onnect");
    EXPECT_EQ(StatusText("device"), "bench device does not answer");
    emit Devices().itemActivated(Devices().item(0));
    ExpectIdle();
    EXPECT_EQ(Devices().item(0)->text(), "bench device");
    EXPECT_EQ(Find<QPushButton>("connect").text(), "C&onnect");
    EXPECT_EQ(StatusText("device"), "bench device connected");
    EXPECT_THAT(Picture().rows, SizeIs(2));
}

TEST_F(MainWindowTest, DamagedDeviceIsRefusedWithABox) {
    Start(MakeDevice());
    std::filesystem::remove(Root() / "krx-8" / "device.json");
    Devices().setCurrentRow(2);
    Find<QPushButton>("connect").click();
    ASSERT_THAT(m_boxes, SizeIs(1));
    EXPECT_EQ(m_boxes[0], "Box \"Connect\":\n    " + (Root() / "krx-8").string() +
                              ": is not a device: there is no device.json in it\nAnswered: OK\n");
    ExpectIdle();
    EXPECT_EQ(StatusText("device"), "bench device connected");
}

TEST_F(MainWindowTest, DisconnectPressedDuringARefreshIsDropped) {
    simulator::DeviceDescription slow = HealthyDevice();
    slow.latency.operationsMs["ProgrammingDeviceControl.GetFileListing"] = 60;
    Start(simulator::CDevice::Create(slow));
    bool wasPressed = false;
    QTimer trial;
    QObject::connect(&trial, &QTimer::timeout, [&] {
        if (StatusText("operation").find("Get file listing") == std::string::npos) {
            return;
        }
        trial.stop();
        wasPressed = true;
        Find<QPushButton>("disconnect").click();
        Devices().setCurrentRow(1);
        Find<QPushButton>("connect").click();
    });
    trial.start(1);
    ExpectIdle();
    EXPECT_TRUE(wasPressed);
    EXPECT_EQ(StatusText("device"), "bench device connected");
}

TEST_F(MainWindowTest, CloseDuringARefreshWaitsForItsEnd) {
    simulator::DeviceDescription slow = HealthyDevice();
    slow.latency.operationsMs["ProgrammingDeviceControl.GetFileListing"] = 500;
    Start(simulator::CDevice::Create(slow));
    bool wasRefused = false;
    QTimer trial;
    QObject::connect(&trial, &QTimer::timeout, [&] {
        if (StatusText("operation").find("Get file listing") == std::string::npos) {
            return;
        }
        trial.stop();
        wasRefused = !m_window->close() && m_window->isVisible();
    });
    trial.start(1);
    ASSERT_TRUE(Until([this] { return !m_window->isVisible(); }));
    EXPECT_TRUE(wasRefused);
    EXPECT_THAT(Picture().rows, SizeIs(2)) << "the refresh has run to its end";
}

TEST_F(MainWindowTest, CloseWhenIdleClosesAtOnce) {
    Start(MakeDevice());
    ExpectIdle();
    EXPECT_TRUE(m_window->close());
    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(MainWindowTest, PanelsCloseButtonClosesTheWindow) {
    Start(MakeDevice());
    ExpectIdle();
    Find<QPushButton>("control-230").click();
    EXPECT_TRUE(m_window->isVisible()) << "not before the request has returned";
    EXPECT_TRUE(Until([this] { return !m_window->isVisible(); }));
}

TEST_F(MainWindowTest, WindowOpensWithThePanelAtItsNaturalSize) {
    EXPECT_EQ(m_window->PanelHolder().size(), m_window->PanelHolder().minimumSize());
    const auto* const area = m_window->findChild<QScrollArea*>();
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
}

TEST_F(MainWindowTest, LargerWindowGivesThePanelTheRoom) {
    const QSize before = m_window->PanelHolder().size();
    m_window->resize(m_window->size() + QSize(200, 100));
    ASSERT_TRUE(Until([&] { return m_window->PanelHolder().size() == before + QSize(200, 100); }));
    EXPECT_EQ(Find<QWidget>("control-234").geometry().right() + 1, before.width() + 200 - 11);
}

TEST_F(MainWindowTest, SmallerWindowScrollsThePanel) {
    m_window->resize(m_window->size() - QSize(200, 100));
    auto* const area = m_window->findChild<QScrollArea*>();
    EXPECT_TRUE(Until([&] { return area->verticalScrollBar()->isVisible(); }));
    EXPECT_TRUE(area->horizontalScrollBar()->isVisible());
    EXPECT_EQ(m_window->PanelHolder().size(), m_window->PanelHolder().minimumSize());
}

TEST_F(MainWindowTest, NoTwoMnemonicsAreTheSame) {
    std::map<std::string, std::vector<std::string>> users;
    const auto note = [&](const QString& text) {
        if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty()) {
            users[key.toString().toStdString()].push_back(text.toStdString());
        }
    };
    for (const QPushButton* button : m_window->findChildren<QPushButton*>()) {
        note(button->text());
    }
    for (const QLabel* label : m_window->findChildren<QLabel*>()) {
        note(label->text());
    }
    EXPECT_GE(users.size(), 11U) << "eight of the panel, three of the workstation";
    for (const auto& [key, texts] : users) {
        EXPECT_THAT(texts, SizeIs(1)) << key;
    }
}

TEST_F(MainWindowTest, PictureHasEveryPartOfThePanel) {
    Start(MakeDevice());
    ExpectIdle();
    const headless::TextPicture picture = Picture();
    EXPECT_EQ(picture.title, "KRX-20 Info");
    ASSERT_THAT(picture.fields, SizeIs(11));
    EXPECT_EQ(picture.fields[0].label, "S/N");
    EXPECT_EQ(picture.fields[0].value, "00-00-5E-00-53-07");
    EXPECT_EQ(picture.fields[10].label, "IP address");
    EXPECT_EQ(picture.fields[10].value, "192.0.2.7");
    ASSERT_THAT(picture.columns, SizeIs(7));
    EXPECT_EQ(picture.columns[4].heading, "Size (B)");
    EXPECT_EQ(picture.columns[4].alignment, panel::Alignment::Right);
    EXPECT_EQ(picture.columns[5].alignment, panel::Alignment::Left);
    ASSERT_THAT(picture.rows, SizeIs(2));
    EXPECT_EQ(picture.rows[1][0], "version.fia");
    EXPECT_EQ(picture.logTitle, "Progress Info");
    ASSERT_FALSE(picture.logLines.empty());
}

}
