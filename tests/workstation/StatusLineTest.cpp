#include "workstation/StatusLine.h"

#include "tests/workstation/Until.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QTimer>

#include <string>

namespace {

class StatusLineTest : public testing::Test {
protected:
    std::string Text(const char* name) const {
        return m_line.findChild<QLabel*>(name)->text().toStdString();
    }
    const QProgressBar& Progress() const { return *m_line.findChild<QProgressBar*>("progress"); }

    QWidget m_window;
    workstation::CStatusLine m_line{&m_window};
};

TEST_F(StatusLineTest, DeviceIsNamedWithItsState) {
    m_line.ShowDevice("krx-20", true);
    EXPECT_EQ(Text("device"), "krx-20 connected");
    m_line.ShowDevice("krx-20", false);
    EXPECT_EQ(Text("device"), "krx-20 does not answer");
    m_line.ShowDevice({}, false);
    EXPECT_EQ(Text("device"), "No device connected");
}

TEST_F(StatusLineTest, PollingIsOnOrSuspended) {
    m_line.ShowPolling(true);
    EXPECT_EQ(Text("polling"), "Phone polling: on");
    m_line.ShowPolling(false);
    EXPECT_EQ(Text("polling"), "Phone polling: suspended");
}

TEST_F(StatusLineTest, ProgressIsShownWithItsMessageAndShare) {
    m_line.ShowProgress("Uploading\r\nfile", 1, 4);
    EXPECT_EQ(Text("operation"), "Uploading file");
    EXPECT_TRUE(Progress().isVisibleTo(&m_window));
    EXPECT_EQ(Progress().value(), Progress().maximum() / 4);
}

TEST_F(StatusLineTest, ProgressBeyondTheTotalIsTheWhole) {
    m_line.ShowProgress("Uploading", 4'000'000'000U, 3);
    EXPECT_EQ(Progress().value(), Progress().maximum());
}

TEST_F(StatusLineTest, MessageWithoutTotalShowsNoBar) {
    m_line.ShowProgress("Preparing", 0, 0);
    EXPECT_EQ(Text("operation"), "Preparing");
    EXPECT_FALSE(Progress().isVisibleTo(&m_window));
}

TEST_F(StatusLineTest, EndedOperationGoesAway) {
    m_line.ShowOperation("ProgrammingDeviceControl.GetFileListing");
    EXPECT_EQ(Text("operation"), "Get file listing\xE2\x80\xA6");
    m_line.ShowProgress("Reading", 1, 2);
    m_line.EndOperation();
    EXPECT_TRUE(Until([this] { return Text("operation").empty(); }));
    EXPECT_FALSE(Progress().isVisibleTo(&m_window));
}

TEST_F(StatusLineTest, ProgressStaysWhileTheOperationLasts) {
    m_line.ShowOperation("ProgrammingDeviceControl.UpdateFromIniFile");
    m_line.ShowProgress("Writing", 1, 2);
    QTimer* const clearing = m_line.findChild<QTimer*>("clearing");
    ASSERT_NE(clearing, nullptr);
    EXPECT_FALSE(clearing->isActive());
    EXPECT_EQ(Text("operation"), "Writing");
    EXPECT_TRUE(Progress().isVisibleTo(&m_window));
    m_line.EndOperation();
    EXPECT_TRUE(clearing->isActive());
}

TEST_F(StatusLineTest, DeviceTextIsNoMarkup) {
    m_line.ShowDevice("<b>krx</b>", true);
    EXPECT_EQ(m_line.findChild<QLabel*>("device")->textFormat(), Qt::PlainText);
}

}
