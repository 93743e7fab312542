#include "tests/frontend/qt/RealHands.h"

#include "frontend/qt/ListView.h"
#include "frontend/qt/QtPanel.h"
#include "panel/control/PanelTemplate.h"
#include "simulator/Device.h"
#include "simulator/Host.h"
#include "tests/frontend/qt/ControlUser.h"
#include "tests/frontend/qt/PromptHands.h"
#include "tests/support/HostDoubles.h"
#include "tests/support/SampleDevices.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace qttests {

namespace {

using Rows = std::vector<int>;

constexpr std::int32_t kKrx20 = 4;
constexpr int kFiles = 60;

/// The panel of a connected device in a window of its own, with a user's hands.
class RealHandsTest : public testing::Test {
protected:
    void SetUp() override {
        m_host.SetHostViewControl(m_viewControl);
        m_host.SetMessageService(m_messageService);
        ASSERT_EQ(m_panel->SetContextAndRegister(m_host.Context()), contract::kSuccess);
        ASSERT_EQ(m_panel->CreateView(&m_window), contract::kSuccess);
        ASSERT_EQ(m_panel->SetSubsystemAccess(m_host.SubsystemAccess()), contract::kSuccess);
        ASSERT_EQ(m_panel->SetConnection(m_host.Connection()), contract::kSuccess);
        const contract::PixelSize size = m_panel->GetNaturalSize();
        m_window.setGeometry(40, 30, size.width, size.height);
        m_window.show();
        m_hands.Activate(m_window);
        Connect();
    }

    void TearDown() override {
        m_panel->DestroyView();
        EXPECT_TRUE(m_messageService->shown.empty());
        EXPECT_TRUE(m_prompts.GetUnexpected().empty());
        EXPECT_EQ(m_prompts.GetOutstanding(), 0u);
    }

    void Connect() {
        simulator::DeviceDescription device = support::HealthyDevice(kKrx20);
        while (device.files.size() < kFiles) {
            const auto number = static_cast<std::int32_t>(device.files.size());
            device.files.push_back(
                support::File("file" + std::to_string(number) + ".fg", 22, number));
        }
        device.selfTests[contract::SelfTest::Ethernet] = 1;
        m_host.InsertDevice(simulator::CDevice::Create(device));
        m_host.RaiseConnectionState(contract::kSuccess, contract::kConnectionDeviceReady);
        ASSERT_EQ(List().GetRowCount(), kFiles);
        List().grab();
    }

    QWidget& Control(panel::ControlId id) const {
        return *CControlUser(*m_window.findChild<QWidget*>("view-103")).FindWidget(id);
    }
    qt::CListView& List() const { return dynamic_cast<qt::CListView&>(Control(panel::kFileList)); }
    QPoint PlaceOf(int row) const {
        return List().visualRect(List().model()->index(row, 0)).center();
    }

    static bool IsHelpShown() {
        for (const QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QStringLiteral("help") && window->isVisible()) {
                return true;
            }
        }
        return false;
    }

    bool WaitForSelection(const Rows& rows) const {
        return QTest::qWaitFor([&] { return List().GetSelectedRows() == rows; });
    }
    bool WaitForFocus(panel::ControlId id) const {
        return QTest::qWaitFor([&] { return Control(id).hasFocus(); });
    }

    simulator::CHost m_host{{.areApplied = false}};
    std::shared_ptr<support::CMessageServiceDouble> m_messageService =
        std::make_shared<support::CMessageServiceDouble>();
    std::shared_ptr<support::CHostViewControlDouble> m_viewControl =
        std::make_shared<support::CHostViewControlDouble>();
    QWidget m_window;
    std::shared_ptr<contract::IPanel> m_panel = qt::CreateQtPanel();
    CPromptHands m_prompts;
    CRealHands m_hands;
};

TEST_F(RealHandsTest, ClicksSelectRows) {
    m_hands.Click(*List().viewport(), PlaceOf(2));
    EXPECT_TRUE(WaitForSelection({2}));
    m_hands.ClickHolding("shift", *List().viewport(), PlaceOf(5));
    EXPECT_TRUE(WaitForSelection({2, 3, 4, 5}));
    m_hands.ClickHolding("ctrl", *List().viewport(), PlaceOf(3));
    EXPECT_TRUE(WaitForSelection({2, 4, 5}));
}

TEST_F(RealHandsTest, ShiftClickAfterRefreshExtendsFromTheFirstRow) {
    m_hands.ClickHolding("shift", *List().viewport(), PlaceOf(3));
    EXPECT_TRUE(WaitForSelection({0, 1, 2, 3}));
}

TEST_F(RealHandsTest, RightClickSelectsTheRowBeneath) {
    m_hands.Click(*List().viewport(), PlaceOf(4), 3);
    EXPECT_TRUE(WaitForSelection({4}));
}

TEST_F(RealHandsTest, WheelAndKeysScrollTheList) {
    m_hands.Click(*List().viewport(), PlaceOf(0), 5);
    EXPECT_TRUE(QTest::qWaitFor([this] { return List().verticalScrollBar()->value() > 0; }));
    m_hands.Click(*List().viewport(), List().viewport()->rect().center());
    m_hands.PressKey("End");
    EXPECT_TRUE(WaitForSelection({kFiles - 1}));
    EXPECT_EQ(List().verticalScrollBar()->value(), List().verticalScrollBar()->maximum());
}

TEST_F(RealHandsTest, DetailsButtonShowsSelfTestsUntilEscape) {
    bool isShown = false;
    m_prompts.Expect<QDialog>([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Startup Self-test statuses"));
        EXPECT_EQ(dialog.findChild<qt::CListView*>()->GetRowCount(), 21);
        isShown = true;
        m_hands.Activate(dialog);
        m_hands.PressKey("Escape");
    });
    m_hands.Click(Control(panel::kDetailsButton));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return isShown && QApplication::activeModalWidget() == nullptr; }, 10000));
}

TEST_F(RealHandsTest, F1ShowsHelp) {
    m_hands.Click(*List().viewport(), PlaceOf(1));
    m_hands.PressKey("F1");
    EXPECT_TRUE(QTest::qWaitFor(IsHelpShown));
}

TEST_F(RealHandsTest, TabFollowsTheTemplate) {
    m_hands.Click(Control(panel::kSerialNumberField));
    ASSERT_TRUE(WaitForFocus(panel::kSerialNumberField));
    constexpr panel::ControlId kOrder[] = {
        panel::kHardwareField,  panel::kFlashSizeField,     panel::kFreeFlashField,
        panel::kRamSizeField,   panel::kFreeRamField,       panel::kBootSwField,
        panel::kFpgaField,      panel::kApplicationSwField, panel::kSelfTestField,
        panel::kIpAddressField, panel::kFileList,           panel::kStatusLog,
        panel::kUpdateButton,   panel::kDeleteButton,       panel::kReportButton,
        panel::kResetButton,    panel::kDetailsButton,      panel::kNetworkButton,
        panel::kCloseButton,    panel::kHelpButton,         panel::kSerialNumberField,
    };
    for (const panel::ControlId id : kOrder) {
        m_hands.PressKey("Tab");
        ASSERT_TRUE(WaitForFocus(id)) << id;
    }
}

TEST_F(RealHandsTest, UpdateButtonHasTheFocusOnceConnected) {
    EXPECT_TRUE(WaitForFocus(panel::kUpdateButton));
}

TEST_F(RealHandsTest, AltMnemonicsPressTheirButtons) {
    m_hands.PressKey("alt+c");
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_viewControl->closeRequests == 1; }));
    m_hands.PressKey("alt+h");
    EXPECT_TRUE(QTest::qWaitFor(IsHelpShown));
}

TEST_F(RealHandsTest, ViewEndedByItsOwnCloseButtonIsGone) {
    m_viewControl->onClose = [this] { m_panel->DestroyView(); };
    m_hands.Click(Control(panel::kCloseButton));
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window.findChildren<QWidget*>().isEmpty(); }));
}

}

}
