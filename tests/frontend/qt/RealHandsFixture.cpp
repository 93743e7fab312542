#include "tests/frontend/qt/RealHandsFixture.h"

#include "frontend/qt/QtPanel.h"
#include "simulator/Device.h"
#include "tests/frontend/qt/ControlUser.h"
#include "tests/support/SampleDevices.h"

#include <QApplication>
#include <QTest>

namespace qttests {

namespace {

constexpr std::int32_t kKrx20 = 4;

}

void RealHandsTest::SetUp() {
    m_panel = qt::CreateQtPanel();
    m_host.SetHostViewControl(m_viewControl);
    m_host.SetMessageService(m_messageService);
    ASSERT_EQ(m_panel->SetContextAndRegister(m_host.Context()), contract::kSuccess);
    ASSERT_EQ(m_panel->CreateView(&m_window), contract::kSuccess);
    ASSERT_EQ(m_panel->SetSubsystemAccess(m_device), contract::kSuccess);
    ASSERT_EQ(m_panel->SetConnection(m_host.Connection()), contract::kSuccess);
    const contract::PixelSize size = m_panel->GetNaturalSize();
    m_window.setGeometry(40, 30, size.width, size.height);
    m_window.show();
    m_hands.Activate(m_window);
    Connect();
}

void RealHandsTest::TearDown() {
    m_panel->DestroyView();
    EXPECT_TRUE(m_messageService->shown.empty());
    EXPECT_TRUE(m_prompts.GetUnexpected().empty());
    EXPECT_EQ(m_prompts.GetOutstanding(), 0u);
}

void RealHandsTest::Connect() {
    simulator::DeviceDescription device = support::HealthyDevice(kKrx20);
    while (device.files.size() < kFiles) {
        const auto number = static_cast<std::int32_t>(device.files.size());
        device.files.push_back(support::File("file" + std::to_string(number) + ".fg", 22, number));
    }
    device.selfTests[contract::SelfTest::Ethernet] = 1;
    device.pcCard = simulator::PcCard{32000000};
    m_host.InsertDevice(simulator::CDevice::Create(device));
    m_host.RaiseConnectionState(contract::kSuccess, contract::kConnectionDeviceReady);
    ASSERT_EQ(List().GetRowCount(), kFiles);
    List().grab();
}

QWidget& RealHandsTest::Control(panel::ControlId id) const {
    return *CControlUser(*m_window.findChild<QWidget*>("view-103")).FindWidget(id);
}

QPoint RealHandsTest::PlaceOf(int row) const {
    return List().visualRect(List().model()->index(row, 0)).center();
}

bool RealHandsTest::WaitForSelection(const Rows& rows) const {
    return QTest::qWaitFor([&] { return List().GetSelectedRows() == rows; });
}

bool RealHandsTest::WaitForFocus(panel::ControlId id) const {
    return QTest::qWaitFor([&] { return Control(id).hasFocus(); });
}

bool RealHandsTest::IsHelpShown() {
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QStringLiteral("help") && window->isVisible()) {
            return true;
        }
    }
    return false;
}

}
