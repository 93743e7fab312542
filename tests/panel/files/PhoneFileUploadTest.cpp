#include "panel/control/Trace.h"
#include "panel/files/PhoneFileUploadTemplate.h"
#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using headless::CHeadlessFileDialog;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kUploadPhoneFile = 1;

Shown Warning(const std::string& text) { return WarningBox(text, "Upload Phone Code file"); }

class PhoneFileUploadTest : public CommandFixture {
protected:
    void SetUp() override { Start(); }

    void Upload(headless::CPromptQueue::FileScript script) {
        desktop->prompts.AnswerMenu(kUploadPhoneFile);
        desktop->prompts.AnswerFileDialog(std::move(script));
        ASSERT_TRUE(View().RightClick(kFileList, 1));
    }
    void Upload(const std::string& path) {
        Upload([path](CHeadlessFileDialog& dialog) { dialog.Accept(path); });
    }
};

TEST_F(PhoneFileUploadTest, ChosenFileIsUploadedAndSelected) {
    Upload("D:\\phones\\BETA.fia");
    EXPECT_THAT(device->calls, ElementsAre("UploadPhoneFile(D:\\phones\\BETA.fia, 0, 3)"));
    EXPECT_EQ(Log(), kMemoryAndListing);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(1));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(PhoneFileUploadTest, PathWithoutSeparatorSelectsTheFirstRow) {
    Upload("version.fia");
    EXPECT_THAT(device->calls, ElementsAre("UploadPhoneFile(version.fia, 0, 3)"));
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(0));
}

TEST_F(PhoneFileUploadTest, NameFollowsTheSeparatorOfTheToolkit) {
    desktop->pathSeparator = '/';
    Upload("/phones/version.fia");
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(2));
}

TEST_F(PhoneFileUploadTest, DialogIsAsDescribed) {
    Upload([](CHeadlessFileDialog& dialog) { dialog.Cancel(); });
    ASSERT_EQ(desktop->prompts.FileDialogs().size(), 1u);
    const FileDialog& dialog = desktop->prompts.FileDialogs().front().dialog;
    EXPECT_EQ(desktop->prompts.FileDialogs().front().kind, headless::FileDialogKind::Open);
    EXPECT_EQ(dialog.owner, Owner::Panel);
    EXPECT_EQ(dialog.title, "Phone file to be uploaded");
    EXPECT_THAT(dialog.filters,
                ElementsAre(FileFilter{"All files (*.*)", "*.*"},
                            FileFilter{"Secondary and Algorithm files (*.fia)", "*.fia"},
                            FileFilter{"Secondary and Algorithm files for QX3 (*.fg)", "*.fg"}));
    EXPECT_EQ(dialog.pathCapacity, 260u);
    EXPECT_EQ(dialog.defaultExtension, "");
    EXPECT_EQ(dialog.startFolder, "");
    ASSERT_NE(dialog.optionsTemplate, nullptr);
    EXPECT_EQ(dialog.optionsTemplate->id, 116);
    EXPECT_EQ(dialog.optionsTemplate->size, (Size{133, 39}));
}

TEST_F(PhoneFileUploadTest, ListsAreFilledAndTheProposalIsChosen) {
    desktop->traceLines.clear();
    Upload([](CHeadlessFileDialog& dialog) {
        headless::CHeadlessView& options = *dialog.Options();
        EXPECT_EQ(options.GetText(264), "Method:");
        EXPECT_EQ(options.GetText(266), "Destination:");
        EXPECT_THAT(options.Choices(265), ElementsAre("default", "Force", "Version", "Flashing"));
        EXPECT_THAT(options.Choices(267),
                    ElementsAre("default", "RAM", "Flash", "External storage"));
        EXPECT_EQ(options.GetSelectedChoice(265), 3);
        EXPECT_EQ(options.GetSelectedChoice(267), 0);
        dialog.Cancel();
    });
    if (kTraceLines) {
        EXPECT_THAT(desktop->traceLines,
                    testing::Contains("PhoneFileUploadHookProc: CDN_INITDONE, Explorer style"));
    }
}

TEST_F(PhoneFileUploadTest, HelpRequestOpensTheTopicOfTheList) {
    Upload([](CHeadlessFileDialog& dialog) {
        dialog.Options()->SetFocus(kUploadDestinationList);
        dialog.Options()->RequestHelp();
    });
    ASSERT_EQ(desktop->helps.size(), 1u);
    EXPECT_EQ(desktop->helps.front().context, 267u);
}

TEST_F(PhoneFileUploadTest, HelpRequestOutsideTheListsOpensTheTopicOfTheDialog) {
    Upload([](CHeadlessFileDialog& dialog) {
        dialog.Options()->SetFocus(kNoControl);
        dialog.Options()->RequestHelp();
    });
    ASSERT_EQ(desktop->helps.size(), 1u);
    EXPECT_EQ(desktop->helps.front().context, 1116u);
}

TEST_F(PhoneFileUploadTest, ChoiceIsUsedAndProposedNextTime) {
    Upload([](CHeadlessFileDialog& dialog) {
        dialog.Options()->Choose(265, "Force");
        dialog.Options()->Choose(267, "External storage");
        dialog.Accept("D:\\a.fia");
    });
    EXPECT_THAT(device->calls, ElementsAre("UploadPhoneFile(D:\\a.fia, 3, 1)"));
    Upload([](CHeadlessFileDialog& dialog) {
        EXPECT_EQ(dialog.Options()->GetSelectedChoice(265), 1);
        EXPECT_EQ(dialog.Options()->GetSelectedChoice(267), 3);
    });
}

TEST_F(PhoneFileUploadTest, CancelledChoiceIsForgotten) {
    Upload([](CHeadlessFileDialog& dialog) {
        dialog.Options()->Choose(265, "Version");
        dialog.Cancel();
    });
    EXPECT_THAT(device->calls, IsEmpty());
    Upload([](CHeadlessFileDialog& dialog) {
        EXPECT_EQ(dialog.Options()->GetSelectedChoice(265), 3);
    });
}

TEST_F(PhoneFileUploadTest, MissingMethodKeepsTheDialogOpen) {
    Upload([this](CHeadlessFileDialog& dialog) {
        dialog.Options()->SelectChoice(265, -1);
        EXPECT_FALSE(dialog.Accept("D:\\a.fia"));
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(dialog.Options()->GetFocus(), kUploadMethodList);
        EXPECT_THAT(device->calls, IsEmpty());
        dialog.Options()->Choose(265, "default");
        EXPECT_TRUE(dialog.Accept("D:\\a.fia"));
    });
    EXPECT_THAT(TakeMessages(), ElementsAre(Warning("Method not selected")));
    EXPECT_THAT(device->calls, ElementsAre("UploadPhoneFile(D:\\a.fia, 0, 0)"));
}

TEST_F(PhoneFileUploadTest, MissingDestinationKeepsTheDialogOpenAndTheMethod) {
    Upload([](CHeadlessFileDialog& dialog) {
        dialog.Options()->Choose(265, "Force");
        dialog.Options()->SelectChoice(267, -1);
        EXPECT_FALSE(dialog.Accept("D:\\a.fia"));
        EXPECT_EQ(dialog.Options()->GetFocus(), kUploadDestinationList);
    });
    EXPECT_THAT(TakeMessages(), ElementsAre(Warning("Destination not selected")));
    EXPECT_THAT(device->calls, IsEmpty());
    Upload([](CHeadlessFileDialog& dialog) {
        EXPECT_EQ(dialog.Options()->GetSelectedChoice(265), 1);
    });
}

TEST_F(PhoneFileUploadTest, BothMissingWarnsOfTheMethodFirst) {
    Upload([](CHeadlessFileDialog& dialog) {
        dialog.Options()->SelectChoice(265, -1);
        dialog.Options()->SelectChoice(267, -1);
        EXPECT_FALSE(dialog.Accept("D:\\a.fia"));
    });
    EXPECT_THAT(TakeMessages(), ElementsAre(Warning("Method not selected")));
}

TEST_F(PhoneFileUploadTest, UnreadableDataWarnsAndCountsAsMinusOne) {
    Upload([](CHeadlessFileDialog& dialog) {
        dialog.Options()->LoseChoiceData(265);
        dialog.Options()->LoseChoiceData(267);
        EXPECT_TRUE(dialog.Accept("D:\\a.fia"));
    });
    EXPECT_THAT(TakeMessages(), ElementsAre(Warning("Upload method retrieving failed"),
                                            Warning("Destination retrieving failed")));
    EXPECT_THAT(device->calls, ElementsAre("UploadPhoneFile(D:\\a.fia, -1, -1)"));
    Upload([](CHeadlessFileDialog& dialog) {
        EXPECT_EQ(dialog.Options()->GetSelectedChoice(265), -1);
        EXPECT_EQ(dialog.Options()->GetSelectedChoice(267), -1);
    });
}

TEST_F(PhoneFileUploadTest, FailingDialogIsReportedWithItsCode) {
    Upload([](CHeadlessFileDialog& dialog) { dialog.Fail(0x3003); });
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("GetOpenFileName() failed, error code 12291",
                                        "Upload Phone Code file", contract::kSuccess)));
    EXPECT_THAT(device->calls, IsEmpty());
}

TEST_F(PhoneFileUploadTest, DialogThatFailsWithoutACodeIsACancel) {
    Upload([](CHeadlessFileDialog& dialog) { dialog.Fail(0); });
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(device->calls, IsEmpty());
}

TEST_F(PhoneFileUploadTest, PathTooLongForTheDialogIsReported) {
    Upload("D:\\" + std::string(256, 'x') + ".fia");
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("GetOpenFileName() failed, error code 12291",
                                        "Upload Phone Code file", contract::kSuccess)));
}

TEST_F(PhoneFileUploadTest, FailureIsReportedAndNothingRefreshed) {
    FailCall("UploadPhoneFile(D:\\a.fia, 0, 3)", Status::FromBits(0x80070070), "RAM is full");
    Upload("D:\\a.fia");
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport(
                                    "Phone Code file uploading failed", "Phone Code file upload",
                                    Status::FromBits(0x80070070), "RAM is full")));
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_TRUE(IsEnabled(kFileList));
}

TEST_F(PhoneFileUploadTest, ControlsAreDisabledFromBeforeTheDialogOn) {
    Upload([this](CHeadlessFileDialog& dialog) {
        EXPECT_FALSE(IsEnabled(kFileList));
        EXPECT_EQ(desktop->cursorDepth, 0);
        dialog.Cancel();
    });
    EXPECT_TRUE(IsEnabled(kFileList));
}

TEST_F(PhoneFileUploadTest, NeitherPollingNorRefreshIsHeldBack) {
    device->answer = [this](const std::string&) {
        EXPECT_TRUE(host.PollingEnabled());
        EXPECT_TRUE(State().refreshAllowed);
        EXPECT_EQ(desktop->cursorDepth, 1);
        return contract::kSuccess;
    };
    Upload("D:\\a.fia");
    EXPECT_EQ(faults->Calls("ProductInformation.GetProductDetection"), 0u);
}

}
