#include "panel/control/Help.h"

#include "tests/support/PanelFixture.h"

namespace {

using namespace panel;
using namespace support;
using headless::ShownHelp;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFile = "component/cmn_krx8maintenanceui.hlp";

class HelpTest : public PanelFixture {
protected:
    void SetUp() override { StartView(); }

    const std::vector<ShownHelp>& Helps() { return desktop->helps; }
};

TEST_F(HelpTest, HelpButtonOpensTheOverviewForThePanel) {
    EXPECT_TRUE(PressButton(9));
    EXPECT_THAT(Helps(), ElementsAre(ShownHelp{kFile, 1, Owner::Panel}));
}

TEST_F(HelpTest, HelpMnemonicOpensTheOverview) {
    EXPECT_TRUE(View().PressMnemonic('h'));
    EXPECT_THAT(Helps(), ElementsAre(ShownHelp{kFile, 1, Owner::Panel}));
}

TEST_F(HelpTest, HelpKeyOpensTheTopicOfTheFocusedControl) {
    View().SetFocus(kSerialNumberField);
    View().RequestHelp();
    EXPECT_THAT(Helps(), ElementsAre(ShownHelp{kFile, 211, Owner::ActiveWindow}));
}

TEST_F(HelpTest, HelpRequestWithoutContextOpensTheOverviewForThePanel) {
    panel->OnHelp(0);
    EXPECT_THAT(Helps(), ElementsAre(ShownHelp{kFile, 1, Owner::Panel}));
}

TEST_F(HelpTest, HelpRequestWithContextOpensThatTopicForTheActiveWindow) {
    panel->OnHelp(1);
    panel->OnHelp(0xFFFFFFFF);
    EXPECT_THAT(Helps(), ElementsAre(ShownHelp{kFile, 1, Owner::ActiveWindow},
                                     ShownHelp{kFile, 0xFFFFFFFF, Owner::ActiveWindow}));
}

TEST_F(HelpTest, HelpFileLiesBesideTheComponent) {
    desktop->componentFolder = "C:/Programs/M\xC3\xBCller";
    PressButton(9);
    ASSERT_EQ(Helps().size(), 1u);
    EXPECT_EQ(Helps()[0].file, "C:/Programs/M\xC3\xBCller/cmn_krx8maintenanceui.hlp");
}

TEST_F(HelpTest, HelpNeedsNeitherHostNorDevice) {
    TakeCalls();
    PressButton(9);
    View().RequestHelp();
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

}
