#pragma once

#include "contract/panel/Panel.h"
#include "frontend/qt/ListView.h"
#include "panel/control/PanelTemplate.h"
#include "simulator/Host.h"
#include "tests/frontend/qt/PromptHands.h"
#include "tests/frontend/qt/RealHands.h"
#include "tests/support/HostDoubles.h"
#include "tests/support/WritingDevice.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace qttests {

using Rows = std::vector<int>;

/// The panel of a connected KRX-20 with kFiles files in a window of its own, with a user's hands.
/// What would change the device is only noted. From the fourth on files are named after their row,
/// which is also their number ("file3.fg", type 22). All are in its Flash; it has a memory card.
class RealHandsTest : public testing::Test {
protected:
    static constexpr int kFiles = 60;

    void SetUp() override;
    void TearDown() override;

    QWidget& Control(panel::ControlId id) const;
    qt::CListView& List() const { return dynamic_cast<qt::CListView&>(Control(panel::kFileList)); }
    QPoint PlaceOf(int row) const;

    bool WaitForSelection(const Rows& rows) const;
    bool WaitForFocus(panel::ControlId id) const;
    static bool IsHelpShown();

    simulator::CHost m_host{{.areApplied = false}};
    std::shared_ptr<support::CWritingDevice> m_device =
        std::make_shared<support::CWritingDevice>(m_host.SubsystemAccess());
    std::shared_ptr<support::CMessageServiceDouble> m_messageService =
        std::make_shared<support::CMessageServiceDouble>();
    std::shared_ptr<support::CHostViewControlDouble> m_viewControl =
        std::make_shared<support::CHostViewControlDouble>();
    QWidget m_window;
    std::shared_ptr<contract::IPanel> m_panel;
    CPromptHands m_prompts;
    CRealHands m_hands;

private:
    void Connect();
};

}
