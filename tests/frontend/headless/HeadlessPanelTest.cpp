#include "frontend/headless/HeadlessPanel.h"

#include "frontend/headless/HeadlessView.h"
#include "panel/control/PanelTemplate.h"

#include <gtest/gtest.h>

namespace headless {

namespace {

TEST(HeadlessPanelTest, PanelsViewIsFoundOnTheDesktop) {
    const auto desktop = std::make_shared<HeadlessDesktop>();
    const auto maintenance = CreateHeadlessPanel(desktop);
    ASSERT_EQ(maintenance->CreateView(nullptr), contract::kSuccess);
    ASSERT_NE(desktop->windows.PanelView(), nullptr);
    EXPECT_EQ(desktop->windows.PanelView()->GetText(panel::kFileGroup), "Flash Box Files");
    maintenance->DestroyView();
    EXPECT_EQ(desktop->windows.PanelView(), nullptr);
}

TEST(HeadlessPanelTest, PanelWithoutADesktopHasItsNaturalSize) {
    EXPECT_EQ(CreateHeadlessPanel()->GetNaturalSize(), (contract::PixelSize{788, 478}));
}

}

}
