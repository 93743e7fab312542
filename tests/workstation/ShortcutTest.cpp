#include "tests/workstation/Devices.h"
#include "tests/workstation/Until.h"
#include "workstation/MainWindow.h"
#include "workstation/PanelFactory.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

namespace {

/// The window's own keys, as they come from a keyboard.
class ShortcutTest : public testing::Test {
protected:
    ShortcutTest() {
        AddDevice("first");
        m_window.emplace(workstation::CreatePanel(), m_root.path().toStdString());
        m_window->show();
        m_window->activateWindow();
        EXPECT_TRUE(Until([this] { return m_window->isActiveWindow(); }));
        m_window->Start({});
        EXPECT_TRUE(Until([this] { return m_window->IsIdle(); }));
    }

    void AddDevice(const QString& name) {
        EXPECT_TRUE(QDir(m_root.path()).mkdir(name));
        QFile description(m_root.filePath(name + "/device.json"));
        EXPECT_TRUE(description.open(QIODevice::WriteOnly));
    }
    QListWidget& Devices() { return *m_window->findChild<QListWidget*>("devices"); }
    QWidget& Focused() { return m_window->focusWidget() ? *m_window->focusWidget() : *m_window; }

    QTemporaryDir m_root;
    std::optional<workstation::CMainWindow> m_window;
};

TEST_F(ShortcutTest, F5ListsTheDevicesAnew) {
    AddDevice("second");
    EXPECT_EQ(Devices().count(), 1);
    QTest::keyClick(&Focused(), Qt::Key_F5);
    ASSERT_EQ(Devices().count(), 2);
    EXPECT_EQ(Devices().item(1)->text(), "second");
}

TEST_F(ShortcutTest, CtrlQClosesTheWindow) {
    QTest::keyClick(&Focused(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(m_window->isVisible());
}

}
