#include "workstation/DevicePane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QListWidget>
#include <QPushButton>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DevicePaneTest : public testing::Test {
protected:
    DevicePaneTest() {
        m_pane.OnConnect([this](const auto& folder) { m_connected.push_back(folder.string()); });
        m_pane.OnDisconnect([this] { ++m_disconnects; });
        m_pane.ShowDevices({"/devices/first", "/devices/second"});
    }

    QListWidget& List() const { return *m_pane.findChild<QListWidget*>("devices"); }
    QPushButton& Button(const char* name) const { return *m_pane.findChild<QPushButton*>(name); }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (int row = 0; row < List().count(); ++row) {
            names.push_back(List().item(row)->text().toStdString());
        }
        return names;
    }

    workstation::CDevicePane m_pane{nullptr};
    std::vector<std::string> m_connected;
    int m_disconnects = 0;
};

TEST_F(DevicePaneTest, DevicesAreShownByNameWithTheirFolderAsToolTip) {
    EXPECT_THAT(Names(), ElementsAre("first", "second"));
    EXPECT_EQ(List().item(1)->toolTip(), "/devices/second");
}

TEST_F(DevicePaneTest, WithoutAChoiceNothingCanBePressed) {
    EXPECT_FALSE(Button("connect").isEnabled());
    EXPECT_FALSE(Button("disconnect").isEnabled());
}

TEST_F(DevicePaneTest, ConnectButtonTellsTheChosenFolder) {
    m_pane.Choose("/devices/second");
    Button("connect").click();
    EXPECT_THAT(m_connected, ElementsAre("/devices/second"));
}

TEST_F(DevicePaneTest, ActivatedDeviceIsConnected) {
    List().setCurrentRow(0);
    emit List().itemActivated(List().item(0));
    EXPECT_THAT(m_connected, ElementsAre("/devices/first"));
}

TEST_F(DevicePaneTest, FolderWhoseNameIsNoTextIsToldByteForByte) {
    m_pane.ShowDevices({"/devices/b\xFCro", "/devices/b\xE9ro"});
    m_pane.Choose("/devices/b\xE9ro");
    EXPECT_EQ(List().currentRow(), 1);
    Button("connect").click();
    EXPECT_THAT(m_connected, ElementsAre("/devices/b\xE9ro"));
}

TEST_F(DevicePaneTest, MarkFindsAFolderWhoseNameIsNoText) {
    m_pane.ShowDevices({"/devices/b\xFCro", "/devices/b\xE9ro"});
    m_pane.Mark("/devices/b\xE9ro");
    EXPECT_FALSE(List().item(0)->font().bold());
    EXPECT_TRUE(List().item(1)->font().bold());
}

TEST_F(DevicePaneTest, DisconnectButtonTellsSo) {
    m_pane.Mark("/devices/first");
    Button("disconnect").click();
    EXPECT_EQ(m_disconnects, 1);
    EXPECT_THAT(m_connected, IsEmpty());
}

TEST_F(DevicePaneTest, ChoosingAnUnknownFolderKeepsTheChoice) {
    m_pane.Choose("/devices/second");
    m_pane.Choose("/devices/third");
    EXPECT_EQ(List().currentRow(), 1);
}

TEST_F(DevicePaneTest, ListedAnewKeepsChoiceAndMark) {
    m_pane.Choose("/devices/second");
    m_pane.Mark("/devices/first");
    m_pane.ShowDevices({"/devices/another", "/devices/first", "/devices/second"});
    EXPECT_EQ(List().currentRow(), 2);
    EXPECT_FALSE(List().item(0)->font().bold());
    EXPECT_TRUE(List().item(1)->font().bold());
}

TEST_F(DevicePaneTest, ChoiceThatHasGoneLeavesNone) {
    m_pane.Choose("/devices/second");
    m_pane.ShowDevices({"/devices/first"});
    EXPECT_EQ(List().currentItem(), nullptr);
    EXPECT_FALSE(Button("connect").isEnabled());
}

TEST_F(DevicePaneTest, MarkMovesToAnotherDevice) {
    m_pane.Mark("/devices/first");
    m_pane.Mark("/devices/second");
    EXPECT_FALSE(List().item(0)->font().bold());
    EXPECT_TRUE(List().item(1)->font().bold());
    m_pane.Mark({});
    EXPECT_FALSE(List().item(1)->font().bold());
    EXPECT_FALSE(Button("disconnect").isEnabled());
}

TEST_F(DevicePaneTest, LostDeviceIsCalledGoneAndCanBeReconnected) {
    m_pane.Choose("/devices/second");
    m_pane.Mark("/devices/second", true);
    EXPECT_THAT(Names(), ElementsAre("first", "second (gone)"));
    EXPECT_EQ(Button("connect").text(), "Rec&onnect");
    EXPECT_TRUE(Button("disconnect").isEnabled());
    m_pane.Choose("/devices/first");
    EXPECT_EQ(Button("connect").text(), "C&onnect");
}

TEST_F(DevicePaneTest, LostDeviceStaysGoneInANewListing) {
    m_pane.Mark("/devices/second", true);
    m_pane.ShowDevices({"/devices/second"});
    EXPECT_THAT(Names(), ElementsAre("second (gone)"));
    m_pane.Mark("/devices/second");
    EXPECT_THAT(Names(), ElementsAre("second"));
}

}
