#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kCaption = "Updating Programming Device software";
constexpr const char* kKey = "SOFTWARE\\Vantor Mobile Phones\\WstShared\\Common\\FlashUpdate";
constexpr const char* kCall = "UpdateFromIniFile(C:\\Pkg\\Flash\\a.ini)";

const Status kPartial = Status::FromBits(0x041B1010);

/// The Update button.
class IniUpdateTest : public CommandFixture {
protected:
    void SetUp() override {
        desktop->registry.PutText(kKey, "FlashDir", "C:\\Pkg");
        Start();
    }

    void Update(const std::string& path = "C:\\Pkg\\Flash\\a.ini") {
        desktop->prompts.ChooseFile(path);
        ASSERT_TRUE(PressButton(kUpdateButton));
    }
    void Answer(Status status) {
        device->answer = [status](const std::string&) {
            contract::SetErrorInfo("a.ini, line 3: no such file");
            return status;
        };
    }
    std::size_t Listings() const {
        return faults->Calls("ProgrammingDeviceControl.GetFileListing");
    }
};

TEST_F(IniUpdateTest, SuccessIsShownAndRefreshed) {
    Update();
    EXPECT_THAT(device->calls, ElementsAre(kCall));
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Shown{"Prommer SW updated succesfully.", kCaption, 0x40, 0, ""}));
    EXPECT_EQ(Listings(), 2u);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

TEST_F(IniUpdateTest, OtherSuccessIsShownAlikeWithItsStatus) {
    Answer(Status(1));
    Update();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Shown{"Prommer SW updated succesfully.", kCaption, 0x40, 1, ""}));
    EXPECT_EQ(Listings(), 2u);
}

TEST_F(IniUpdateTest, PartialUpdateIsAWarningAndRefreshed) {
    Answer(kPartial);
    Update();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Shown{"Update via INI-file partially failed: not all files are updated",
                                  kCaption, 0x30, 0x041B1010, ""}));
    EXPECT_EQ(Listings(), 2u);
}

TEST_F(IniUpdateTest, FailureIsReportedWithoutRefreshAndGivesTheControlsBack) {
    Answer(Status::FromBits(0x80070002));
    Update();
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport(
                                    "Programming Device update via INI-file failed", kCaption,
                                    Status::FromBits(0x80070002), "a.ini, line 3: no such file")));
    EXPECT_EQ(Listings(), 1u);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
    EXPECT_TRUE(IsEnabled(kFileList));
}

TEST_F(IniUpdateTest, FailureLeavesDetailsDisabled) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.selfTests[contract::SelfTest::Usb] = 1;
    ConnectDevice(description);
    ASSERT_TRUE(IsEnabled(kDetailsButton));
    Answer(contract::kUnspecifiedFailure);
    Update();
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_FALSE(IsEnabled(kDetailsButton));
}

TEST_F(IniUpdateTest, DialogStartsInThePackageAndBelongsToThePanelsParent) {
    desktop->prompts.CancelFileDialog();
    PressButton(kUpdateButton);
    const FileDialog& dialog = desktop->prompts.FileDialogs().front().dialog;
    EXPECT_EQ(dialog.owner, Owner::PanelParent);
    EXPECT_EQ(dialog.startFolder, "C:\\Pkg\\Flash");
    EXPECT_EQ(dialog.defaultExtension, "ini");
    EXPECT_THAT(dialog.filters, ElementsAre(FileFilter{"Ini files (*.ini)", "*.ini"},
                                            FileFilter{"All files (*.*)", "*.*"}));
}

TEST_F(IniUpdateTest, CancelChangesNothing) {
    desktop->prompts.AnswerFileDialog([this](headless::CHeadlessFileDialog& dialog) {
        EXPECT_FALSE(State().refreshAllowed);
        EXPECT_TRUE(IsEnabled(kUpdateButton));
        EXPECT_EQ(desktop->cursorDepth, 0);
        dialog.Cancel();
    });
    PressButton(kUpdateButton);
    EXPECT_TRUE(State().refreshAllowed);
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(IniUpdateTest, PackageFolderTooLongForADialogIsACancel) {
    desktop->registry.PutText(kKey, "FlashDir", std::string(233, 'p'));
    PressButton(kUpdateButton);
    EXPECT_THAT(desktop->prompts.FileDialogs(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_TRUE(State().refreshAllowed);
}

TEST_F(IniUpdateTest, DeviceIsLeftAloneByPollingEventsAndUserMeanwhile) {
    device->answer = [this](const std::string&) {
        EXPECT_FALSE(host.PollingEnabled());
        EXPECT_FALSE(State().refreshAllowed);
        EXPECT_FALSE(IsEnabled(kUpdateButton));
        EXPECT_EQ(desktop->cursorDepth, 1);
        RaiseState(7);
        return contract::kSuccess;
    };
    Update();
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(Listings(), 2u);
}

TEST_F(IniUpdateTest, WithoutControlTheUpdateIsReportedAndEverythingRestored) {
    EndPanel();
    panel = CKRX8Maintenance::Create(std::make_unique<headless::CHeadlessToolkit>(desktop));
    StartView();
    desktop->prompts.ChooseFile("a.ini");
    panel->OnCommand(kUpdateButton);
    // The others are of the polling, which cannot be suspended without a host's subsystems either.
    EXPECT_THAT(TakeMessages(),
                Contains(ErrorReport("Programming Device update via INI-file failed", kCaption,
                                     Status::FromBits(0x80004003)))
                    .Times(1));
    EXPECT_TRUE(State().refreshAllowed);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(IniUpdateTest, BoxIsShownBeforeRefreshIsAllowedAgain) {
    for (const Status status : {contract::kSuccess, contract::kUnspecifiedFailure}) {
        Answer(status);
        bool isAllowed = true;
        messageService->whileOpen = [&] {
            isAllowed = State().refreshAllowed;
            EXPECT_FALSE(host.PollingEnabled());
            EXPECT_FALSE(IsEnabled(kUpdateButton));
        };
        Update();
        EXPECT_FALSE(isAllowed);
        EXPECT_EQ(TakeMessages().size(), 1u);
    }
}

TEST_F(IniUpdateTest, RefreshRunsWhilePollingIsSuspended) {
    bool isPolling = true;
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"},
                      [&] { isPolling = host.PollingEnabled(); });
    Update();
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_FALSE(isPolling);
}

}
