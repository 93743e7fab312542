// What the phone file dialog offers, and what a choice means to the device.

#include "panel/files/PhoneFileUploadTemplate.h"
#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using headless::CHeadlessFileDialog;
using testing::ElementsAre;

class PhoneFileUploadChoiceTest : public CommandFixture {
protected:
    void SetUp() override { Start(); }

    void Upload(headless::CPromptQueue::FileScript script) {
        desktop->prompts.AnswerMenu(1);
        desktop->prompts.AnswerFileDialog(std::move(script));
        ASSERT_TRUE(View().RightClick(kFileList, 1));
    }
};

struct ChoiceCase {
    const char* name;
    ControlId list;
    const char* choice;
    const char* call;
};

void PrintTo(const ChoiceCase& value, std::ostream* out) { *out << value.name; }

class EachChoiceTest : public PhoneFileUploadChoiceTest,
                       public testing::WithParamInterface<ChoiceCase> {};

TEST_P(EachChoiceTest, ChoiceReachesTheDeviceAsItsNumber) {
    Upload([](CHeadlessFileDialog& dialog) {
        EXPECT_TRUE(dialog.Options()->Choose(GetParam().list, GetParam().choice));
        dialog.Accept("D:\\a.fia");
    });
    EXPECT_THAT(device->calls, ElementsAre(GetParam().call));
}

INSTANTIATE_TEST_SUITE_P(
    Choices, EachChoiceTest,
    testing::Values(
        ChoiceCase{"DefaultMethod", 265, "default", "UploadPhoneFile(D:\\a.fia, 0, 0)"},
        ChoiceCase{"Force", 265, "Force", "UploadPhoneFile(D:\\a.fia, 0, 1)"},
        ChoiceCase{"Version", 265, "Version", "UploadPhoneFile(D:\\a.fia, 0, 2)"},
        ChoiceCase{"Flashing", 265, "Flashing", "UploadPhoneFile(D:\\a.fia, 0, 3)"},
        ChoiceCase{"DefaultDestination", 267, "default", "UploadPhoneFile(D:\\a.fia, 0, 3)"},
        ChoiceCase{"Ram", 267, "RAM", "UploadPhoneFile(D:\\a.fia, 1, 3)"},
        ChoiceCase{"Flash", 267, "Flash", "UploadPhoneFile(D:\\a.fia, 2, 3)"},
        ChoiceCase{"ExternalStorage", 267, "External storage", "UploadPhoneFile(D:\\a.fia, 3, 3)"}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(PhoneFileUploadChoiceTest, NextDialogProposesNoFile) {
    Upload([](CHeadlessFileDialog& dialog) { dialog.Accept("D:\\a.fia"); });
    Upload([](CHeadlessFileDialog& dialog) {
        EXPECT_EQ(dialog.Dialog().fileName, "");
        dialog.Cancel();
    });
    EXPECT_EQ(device->calls.size(), 1u);
}

TEST_F(PhoneFileUploadChoiceTest, ChoiceOutlivesTheDevice) {
    Upload([](CHeadlessFileDialog& dialog) {
        dialog.Options()->Choose(265, "Version");
        dialog.Options()->Choose(267, "RAM");
        dialog.Accept("D:\\a.fia");
    });
    DisconnectDevice();
    ConnectDevice(simulator::kKrx10);
    Upload([](CHeadlessFileDialog& dialog) {
        EXPECT_EQ(dialog.Options()->GetSelectedChoice(265), 2);
        EXPECT_EQ(dialog.Options()->GetSelectedChoice(267), 1);
        dialog.Cancel();
    });
}

TEST_F(PhoneFileUploadChoiceTest, FocusGoesToTheMissingOptionAfterItsWarning) {
    for (const ControlId missing : {kUploadMethodList, kUploadDestinationList}) {
        Upload([&](CHeadlessFileDialog& dialog) {
            headless::CHeadlessView& options = *dialog.Options();
            const ControlId other =
                missing == kUploadMethodList ? kUploadDestinationList : kUploadMethodList;
            options.SetFocus(other);
            options.SelectChoice(missing, -1);
            messageService->whileOpen = [&] { EXPECT_EQ(options.GetFocus(), other); };
            EXPECT_FALSE(dialog.Accept("D:\\a.fia"));
            EXPECT_EQ(options.GetFocus(), missing);
            messageService->whileOpen = nullptr;
        });
    }
    EXPECT_EQ(TakeMessages().size(), 2u);
}

TEST_F(PhoneFileUploadChoiceTest, WaitCursorShowsUntilTheFilesAreListed) {
    int atMemory = 0;
    int atListing = 0;
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFreeResources"},
                      [&] { atMemory = desktop->cursorDepth; });
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"},
                      [&] { atListing = desktop->cursorDepth; });
    Upload([](CHeadlessFileDialog& dialog) { dialog.Accept("D:\\a.fia"); });
    EXPECT_EQ(atMemory, 1);
    EXPECT_EQ(atListing, 1);
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(PhoneFileUploadChoiceTest, FailureIsToldUnderTheWaitCursor) {
    FailCall("UploadPhoneFile(D:\\a.fia, 0, 3)");
    int depth = 0;
    messageService->whileOpen = [&] { depth = desktop->cursorDepth; };
    Upload([](CHeadlessFileDialog& dialog) { dialog.Accept("D:\\a.fia"); });
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(depth, 1);
}

TEST_F(PhoneFileUploadChoiceTest, DialogThatFailsGivesTheControlsBack) {
    Upload([this](CHeadlessFileDialog& dialog) {
        EXPECT_FALSE(IsEnabled(kUpdateButton));
        dialog.Fail(0x3003);
    });
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
    EXPECT_TRUE(IsEnabled(kFileList));
}

}
