#include "panel/netconf/KRX10Conf.h"

#include "frontend/headless/HeadlessToolkit.h"
#include "panel/control/Help.h"
#include "panel/netconf/KRX10ConfTemplate.h"

#include <gtest/gtest.h>

namespace panel {
namespace {

using headless::CHeadlessView;

constexpr NetworkValues Values(bool useDhcp) {
    return {.ipAddress = 0x0100A8C0,
            .subnetMask = 0x00FFFFFF,
            .gateway = 0xFE00A8C0,
            .useDhcp = useDhcp,
            .description = {}};
}

class KRX10ConfTest : public testing::Test {
protected:
    /// Shows the dialog and returns how it was closed.
    int Show(const NetworkValues& values, headless::CPromptQueue::DialogScript script) {
        toolkit.Desktop()->prompts.AnswerDialog(std::move(script));
        CKRX10Conf dialog(values, help);
        const DialogOutcome outcome = toolkit.RunDialog(kKRX10ConfTemplate, dialog, Owner::Panel);
        choice = dialog.Choice();
        return outcome.code;
    }

    headless::CHeadlessToolkit toolkit;
    CHelp help{toolkit};
    NetworkChoice choice;
};

TEST_F(KRX10ConfTest, DialogIsAsDesigned) {
    Show(Values(false), [](CHeadlessView& dialog) {
        EXPECT_EQ(dialog.Template().id, 203);
        EXPECT_STREQ(dialog.Template().title, "KRX-10 Configuration");
        EXPECT_EQ(dialog.Template().size, (Size{238, 159}));
        EXPECT_EQ(dialog.GetText(248), "Use DHCP");
        EXPECT_EQ(dialog.GetText(250), "Internal Compact Flash");
        EXPECT_EQ(dialog.GetText(251), "PCCard Compact Flash");
    });
}

TEST_F(KRX10ConfTest, MnemonicTicksDhcp) {
    Show(Values(false), [](CHeadlessView& dialog) {
        EXPECT_TRUE(dialog.PressMnemonic('u'));
        EXPECT_TRUE(dialog.IsChecked(248));
        EXPECT_FALSE(dialog.IsEnabled(247));
    });
}

TEST_F(KRX10ConfTest, ValuesAreShown) {
    NetworkValues values = Values(false);
    values.description = "bench 3";
    Show(values, [](CHeadlessView& dialog) {
        EXPECT_EQ(dialog.GetAddress(247), 0xC0A80001u);
        EXPECT_EQ(dialog.GetAddress(261), 0xFFFFFF00u);
        EXPECT_EQ(dialog.GetAddress(263), 0xC0A800FEu);
        EXPECT_EQ(dialog.GetText(249), "bench 3");
        EXPECT_FALSE(dialog.IsChecked(248));
        EXPECT_TRUE(dialog.IsEnabled(247) && dialog.IsEnabled(261) && dialog.IsEnabled(263));
        EXPECT_FALSE(dialog.IsChecked(250) || dialog.IsChecked(251));
        EXPECT_EQ(dialog.TextLimit(249), 110u);
    });
}

TEST_F(KRX10ConfTest, DhcpDisablesTheAddresses) {
    Show(Values(true), [](CHeadlessView& dialog) {
        EXPECT_TRUE(dialog.IsChecked(248));
        EXPECT_EQ(dialog.GetAddress(247), 0xC0A80001u);
        EXPECT_EQ(dialog.GetAddress(261), 0xFFFFFF00u);
        EXPECT_EQ(dialog.GetAddress(263), 0xC0A800FEu);
        EXPECT_FALSE(dialog.IsEnabled(247) || dialog.IsEnabled(261) || dialog.IsEnabled(263));
        dialog.Toggle(248);
        EXPECT_TRUE(dialog.IsEnabled(247) && dialog.IsEnabled(261) && dialog.IsEnabled(263));
        dialog.Toggle(248);
        EXPECT_FALSE(dialog.IsEnabled(247) || dialog.IsEnabled(261) || dialog.IsEnabled(263));
    });
}

TEST_F(KRX10ConfTest, OkTakesWhatWasEntered) {
    EXPECT_EQ(Show(Values(false),
                   [](CHeadlessView& dialog) {
                       dialog.TypeAddress(247, 0x0A000002);
                       dialog.TypeAddress(261, 0xFF000000);
                       dialog.TypeAddress(263, 0x0A000001);
                       dialog.TypeText(249, "new name");
                       dialog.Toggle(250);
                       dialog.PressReturn();
                   }),
              1);
    EXPECT_EQ(choice.values.ipAddress, 0x0200000Au);
    EXPECT_EQ(choice.values.subnetMask, 0x000000FFu);
    EXPECT_EQ(choice.values.gateway, 0x0100000Au);
    EXPECT_FALSE(choice.values.useDhcp);
    EXPECT_EQ(choice.values.description, "new name");
    EXPECT_TRUE(choice.formatInternalFlash);
    EXPECT_FALSE(choice.formatPcCard);
}

TEST_F(KRX10ConfTest, AddressesThatMakeNoSenseAreTaken) {
    Show(Values(true), [](CHeadlessView& dialog) {
        dialog.Toggle(248);
        dialog.TypeAddress(247, 0xFFFFFFFF);
        dialog.TypeAddress(261, 0x00FF00FF);
        dialog.TypeAddress(263, 0);
        EXPECT_TRUE(dialog.Press(1));
    });
    EXPECT_EQ(choice.values.ipAddress, 0xFFFFFFFFu);
    EXPECT_EQ(choice.values.subnetMask, 0xFF00FF00u);
    EXPECT_EQ(choice.values.gateway, 0u);
    EXPECT_FALSE(choice.values.useDhcp);
}

TEST_F(KRX10ConfTest, DhcpStandsForTheAddresses) {
    Show(Values(false), [](CHeadlessView& dialog) {
        dialog.Toggle(248);
        dialog.Toggle(251);
        dialog.Press(1);
    });
    EXPECT_EQ(choice.values.ipAddress, 0xFFFFFFFFu);
    EXPECT_EQ(choice.values.subnetMask, 0u);
    EXPECT_EQ(choice.values.gateway, 0u);
    EXPECT_TRUE(choice.values.useDhcp);
    EXPECT_TRUE(choice.formatPcCard);
}

TEST_F(KRX10ConfTest, DescriptionIsLimitedTo110Characters) {
    Show(Values(true), [](CHeadlessView& dialog) {
        dialog.TypeText(249, std::string(200, 'd'));
        dialog.Press(1);
    });
    EXPECT_EQ(choice.values.description, std::string(110, 'd'));
}

TEST_F(KRX10ConfTest, LongerDescriptionThanCanBeTypedIsCutAtOk) {
    NetworkValues values = Values(false);
    values.description = std::string(200, 'd');
    Show(values, [](CHeadlessView& dialog) { dialog.Press(1); });
    EXPECT_EQ(choice.values.description, std::string(110, 'd'));
}

TEST_F(KRX10ConfTest, CharactersOfTwoBytesCountAsOne) {
    std::string typed;
    for (int count = 0; count < 110; ++count) {
        typed += "\u0416";
    }
    Show(Values(true), [&](CHeadlessView& dialog) {
        dialog.TypeText(249, typed + "\u0416");
        dialog.Press(1);
    });
    EXPECT_EQ(choice.values.description, typed);
}

TEST_F(KRX10ConfTest, CancelAndEscapeChangeNothing) {
    const auto change = [](CHeadlessView& dialog) {
        dialog.TypeText(249, "new name");
        dialog.Toggle(250);
    };
    EXPECT_EQ(Show(Values(false),
                   [&](CHeadlessView& dialog) {
                       change(dialog);
                       dialog.Press(2);
                   }),
              2);
    EXPECT_EQ(choice.values.description, "");
    EXPECT_FALSE(choice.FormatsAny());
    EXPECT_EQ(Show(Values(false), change), 2);
}

TEST_F(KRX10ConfTest, HelpRequestOpensTheHelp) {
    Show(Values(true), [](CHeadlessView& dialog) { dialog.RequestHelp(); });
    EXPECT_EQ(toolkit.Desktop()->helps.size(), 1u);
}

}
}
