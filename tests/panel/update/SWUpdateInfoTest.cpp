#include "panel/update/SWUpdateInfo.h"

#include "frontend/headless/HeadlessToolkit.h"
#include "panel/control/Help.h"
#include "panel/control/Trace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace panel {
namespace {

using headless::CHeadlessView;
using testing::ElementsAre;
using testing::IsEmpty;

class SWUpdateInfoTest : public testing::Test {
protected:
    ControlId Show(const std::string& package, const std::string& device,
                   headless::CPromptQueue::DialogScript script) {
        toolkit.Desktop()->prompts.AnswerDialog(std::move(script));
        return CSWUpdateInfo(toolkit, help, package, device).Show();
    }

    headless::CHeadlessToolkit toolkit;
    CHelp help{toolkit};
};

TEST_F(SWUpdateInfoTest, NewerPackageIsOfferedWithBothVersions) {
    Show("002.010.004", "002.010.003", [](CHeadlessView& dialog) {
        EXPECT_EQ(dialog.GetText(239),
                  "Newer version of Programming Device software is available.");
        EXPECT_EQ(dialog.GetText(271), "Would you like to update the Programming Device now?");
        EXPECT_EQ(dialog.GetText(240), "Flash Update Version:");
        EXPECT_EQ(dialog.GetText(241), "002.010.004");
        EXPECT_EQ(dialog.GetText(242), "Device's SW Version:");
        EXPECT_EQ(dialog.GetText(243), "002.010.003");
        EXPECT_EQ(dialog.Icon(270), StandardIcon::Information);
        EXPECT_EQ(dialog.GetFocus(), 6);
    });
}

TEST_F(SWUpdateInfoTest, DeviceWithoutVersionIsUnknownAndAWarning) {
    Show("", "", [](CHeadlessView& dialog) {
        EXPECT_EQ(dialog.GetText(239),
                  "No \"version.fia\" file was found from the Programming Device. This may be a "
                  "result of previously failed update.");
        EXPECT_EQ(dialog.GetText(241), "");
        EXPECT_EQ(dialog.GetText(243), "unknown");
        EXPECT_EQ(dialog.Icon(270), StandardIcon::Warning);
    });
}

TEST_F(SWUpdateInfoTest, DialogBelongsToThePanelAndIsAsDesigned) {
    Show("1", "", {});
    EXPECT_EQ(toolkit.Desktop()->prompts.Dialogs().front().templateId, 202);
    EXPECT_EQ(toolkit.Desktop()->prompts.Dialogs().front().owner, Owner::Panel);
    Show("1", "", [](CHeadlessView& dialog) {
        EXPECT_STREQ(dialog.Template().title, "Programming Device's SW Update");
        EXPECT_EQ(dialog.Template().size, (Size{206, 100}));
    });
}

TEST_F(SWUpdateInfoTest, TextsAreCutTo80Characters) {
    Show(std::string(90, '1'), std::string(90, '2'), [](CHeadlessView& dialog) {
        EXPECT_EQ(dialog.GetText(241), std::string(80, '1'));
        EXPECT_EQ(dialog.GetText(243), std::string(80, '2'));
    });
}

TEST_F(SWUpdateInfoTest, EachWayOutHasItsOwnResult) {
    EXPECT_EQ(Show("1", "", [](CHeadlessView& dialog) { dialog.Press(6); }), 6);
    EXPECT_EQ(Show("1", "", [](CHeadlessView& dialog) { dialog.PressReturn(); }), 6);
    EXPECT_EQ(Show("1", "", [](CHeadlessView& dialog) { dialog.PressMnemonic('y'); }), 6);
    EXPECT_EQ(Show("1", "", [](CHeadlessView& dialog) { dialog.Press(7); }), 7);
    EXPECT_EQ(Show("1", "", [](CHeadlessView& dialog) { dialog.PressMnemonic('n'); }), 7);
    EXPECT_EQ(Show("1", "", [](CHeadlessView& dialog) { dialog.PressEscape(); }), 2);
}

TEST_F(SWUpdateInfoTest, DialogThatCannotBeMadeIsNoYes) {
    toolkit.Desktop()->prompts.FailDialog(8);
    EXPECT_EQ(CSWUpdateInfo(toolkit, help, "1", "").Show(), 2);
}

TEST_F(SWUpdateInfoTest, IconThatCannotBeLoadedIsTracedAndLeftOut) {
    toolkit.Desktop()->iconError = 1812;
    Show("1", "", [](CHeadlessView& dialog) { EXPECT_EQ(dialog.Icon(270), std::nullopt); });
    if (kTraceLines) {
        EXPECT_THAT(toolkit.Desktop()->traceLines,
                    ElementsAre("CSWUpdateInfo::OnInitDialog: Icon loading failed, error 1812"));
    } else {
        EXPECT_THAT(toolkit.Desktop()->traceLines, IsEmpty());
    }
}

TEST_F(SWUpdateInfoTest, OtherCommandLeavesTheDialogOpen) {
    CSWUpdateInfo prompt(toolkit, help, "1", "");
    toolkit.Desktop()->prompts.AnswerDialog([&](CHeadlessView& dialog) {
        for (const ControlId id : {0, 1, 3, 9, 239, 241, 243, 270}) {
            prompt.OnCommand(id);
            EXPECT_EQ(dialog.DialogResult(), std::nullopt) << id;
        }
    });
    EXPECT_EQ(prompt.Show(), 2);
}

TEST_F(SWUpdateInfoTest, HelpRequestOpensTheHelp) {
    Show("1", "", [](CHeadlessView& dialog) { dialog.RequestHelp(); });
    EXPECT_EQ(toolkit.Desktop()->helps.size(), 1u);
}

}
}
