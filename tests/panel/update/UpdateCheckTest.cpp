#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using headless::CHeadlessView;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kPrompt = 202;
constexpr const char* kKey = "SOFTWARE\\Vantor Mobile Phones\\WstShared\\Common\\FlashUpdate";
constexpr const char* kCaption = "Updating Programming Device software";

const Shown kUpdated{"Prommer SW updated succesfully.", kCaption, 0x40, 0, ""};

/// The refresh's look for a newer package.
class UpdateCheckTest : public CommandFixture {
protected:
    void SetUp() override {
        desktop->prompts.AnswerAlways(kPrompt, kNoControl);
        desktop->registry.PutText(kKey, "FlashDir", "C:\\Pkg");
    }

    void SetPackageVersion(const std::string& version) {
        desktop->registry.PutText(kKey, "FlashVersion", version);
    }
    static simulator::DeviceDescription DeviceWithPackage(const std::string& version,
                                                          std::int32_t type = 4) {
        simulator::DeviceDescription description = HealthyDevice(type);
        description.files = {File("a.fia", 19, 1), File("version.fia", 22, 3, version)};
        return description;
    }
    static simulator::DeviceDescription DeviceWithoutPackage() {
        simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
        description.files = {File("a.fia", 19, 1)};
        return description;
    }
    void Connect(const simulator::DeviceDescription& description) {
        StartPanel();
        ConnectDevice(description);
    }
    void AnswerPrompt(ControlId button) {
        desktop->prompts.AnswerDialog([button](CHeadlessView& dialog) { dialog.Press(button); });
    }
    std::size_t Prompts() const { return desktop->prompts.Dialogs().size(); }
    std::size_t Listings() const {
        return faults->Calls("ProgrammingDeviceControl.GetFileListing");
    }
};

TEST_F(UpdateCheckTest, NewerPackageIsOffered) {
    SetPackageVersion("2.10.4");
    desktop->prompts.AnswerDialog([](CHeadlessView& dialog) {
        EXPECT_EQ(dialog.GetText(241), "002.010.004");
        EXPECT_EQ(dialog.GetText(243), "002.010.003");
        dialog.Press(kNoButton);
    });
    Connect(DeviceWithPackage("2.10.3"));
    EXPECT_EQ(Prompts(), 1u);
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_EQ(Listings(), 1u);
}

TEST_F(UpdateCheckTest, SameOrOlderPackageIsNotOffered) {
    SetPackageVersion("2.10.4");
    Connect(DeviceWithPackage("2.10.4"));
    ConnectDevice(DeviceWithPackage("2.11"));
    EXPECT_EQ(Prompts(), 0u);
}

TEST_F(UpdateCheckTest, InstalledVersionIsLoggedAfterTheListing) {
    Connect(DeviceWithPackage("2.11"));
    ASSERT_GE(Log().size(), 2u);
    EXPECT_EQ(Log().back(),
              "Currently installed Flash Update Package in Programming Device is: 002.011");
    EXPECT_EQ(Log()[Log().size() - 2], "File listing updated");
}

TEST_F(UpdateCheckTest, InstalledVersionIsLoggedBeforeThePrompt) {
    SetPackageVersion("2.10.4");
    std::string lastLine;
    desktop->prompts.AnswerDialog([&](CHeadlessView& dialog) {
        lastLine = Log().back();
        dialog.Press(kNoButton);
    });
    Connect(DeviceWithPackage("2.10.3"));
    EXPECT_EQ(lastLine,
              "Currently installed Flash Update Package in Programming Device is: 002.010.003");
}

TEST_F(UpdateCheckTest, VersionWithAnotherGroupIsNewer) {
    SetPackageVersion("1.2.0");
    AnswerPrompt(kNoButton);
    Connect(DeviceWithPackage("1.2"));
    EXPECT_EQ(Prompts(), 1u);
    SetPackageVersion("1.2");
    ConnectDevice(DeviceWithPackage("1.2.0"));
    EXPECT_EQ(Prompts(), 1u);
}

TEST_F(UpdateCheckTest, DeviceWithoutVersionIsOfferedAnyPackage) {
    desktop->prompts.AnswerDialog([](CHeadlessView& dialog) {
        EXPECT_EQ(dialog.GetText(241), "");
        EXPECT_EQ(dialog.GetText(243), "unknown");
        dialog.Press(kNoButton);
    });
    Connect(DeviceWithoutPackage());
    EXPECT_EQ(Prompts(), 1u);
    EXPECT_EQ(Log().back(), "File listing updated");
}

TEST_F(UpdateCheckTest, MissingPackageIsNotOfferedToADeviceThatNamesAVersion) {
    Connect(DeviceWithPackage("1.000"));
    EXPECT_EQ(Prompts(), 0u);
}

TEST_F(UpdateCheckTest, VersionFileIsFoundWhateverItsCase) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx20);
    description.files = {File("VERSION.FIA", 22, 3, "1.2")};
    Connect(description);
    EXPECT_EQ(State().installedPackageVersion, "001.002");
    EXPECT_EQ(Prompts(), 0u);
}

TEST_F(UpdateCheckTest, PackageVersionIsReadUpTo80Characters) {
    SetPackageVersion("1." + std::string(78, '0') + "9.5");
    desktop->prompts.AnswerDialog([](CHeadlessView& dialog) {
        EXPECT_EQ(dialog.GetText(241), "001.000");
        dialog.Press(kNoButton);
    });
    Connect(DeviceWithoutPackage());
    EXPECT_EQ(Prompts(), 1u);
    EXPECT_THAT(device->calls, IsEmpty());
}

TEST_F(UpdateCheckTest, ControlsAreEnabledAfterThePrompt) {
    desktop->prompts.AnswerDialog([this](CHeadlessView& dialog) {
        EXPECT_FALSE(IsEnabled(kUpdateButton));
        EXPECT_EQ(RowCount(), 1);
        dialog.Press(kNoButton);
    });
    Connect(DeviceWithoutPackage());
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

class DeclinedPromptTest : public UpdateCheckTest, public testing::WithParamInterface<ControlId> {};

TEST_P(DeclinedPromptTest, AnythingButYesDoesNothingAndIsAskedAgain) {
    AnswerPrompt(GetParam());
    Connect(DeviceWithoutPackage());
    EXPECT_THAT(device->calls, IsEmpty());
    AnswerPrompt(GetParam());
    RaiseState(7);
    EXPECT_EQ(Prompts(), 2u);
    EXPECT_EQ(Listings(), 2u);
}

INSTANTIATE_TEST_SUITE_P(Answers, DeclinedPromptTest, testing::Values(kNoButton, kCancelButton));

// Updating from the package

TEST_F(UpdateCheckTest, YesUpdatesAndRefreshesAgain) {
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    EXPECT_THAT(device->calls, ElementsAre("UpdateFromIniFile(C:\\Pkg\\Flash\\krxxupd.ini)"));
    EXPECT_THAT(TakeMessages(), ElementsAre(kUpdated));
    EXPECT_EQ(Prompts(), 2u);
    EXPECT_EQ(Listings(), 2u);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

TEST_F(UpdateCheckTest, SecondRefreshEndsWithinTheFirst) {
    std::vector<bool> areEnabled;
    std::vector<int> depths;
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"}, [&] {
        areEnabled.push_back(IsEnabled(kUpdateButton));
        depths.push_back(desktop->cursorDepth);
    });
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(areEnabled, ElementsAre(false));
    EXPECT_THAT(depths, ElementsAre(2));
    EXPECT_EQ(TakeCalls().back(), "FileInfo.GetGeneration");
}

TEST_F(UpdateCheckTest, UpdateThatInstallsTheVersionIsNotAskedAgain) {
    AnswerPrompt(kYesButton);
    device->answer = [this](const std::string&) {
        host.InsertDevice(simulator::CDevice::Create(DeviceWithPackage("3.0")));
        return contract::kSuccess;
    };
    Connect(DeviceWithoutPackage());
    EXPECT_EQ(Prompts(), 1u);
    EXPECT_THAT(TakeMessages(), ElementsAre(kUpdated));
    EXPECT_THAT(Log(), Contains("Currently installed Flash Update Package in Programming Device "
                                "is: 003.000"));
}

TEST_F(UpdateCheckTest, Krx8FamilyHasADescriptionOfItsOwn) {
    for (const std::int32_t type : {1, 2}) {
        simulator::DeviceDescription description = DeviceWithoutPackage();
        description.type = type;
        AnswerPrompt(kYesButton);
        AnswerPrompt(kNoButton);
        type == 1 ? Connect(description) : ConnectDevice(description);
        EXPECT_EQ(device->calls.back(), "UpdateFromIniFile(C:\\Pkg\\Flash\\krx8upd.ini)");
    }
    EXPECT_EQ(TakeMessages().size(), 2u);
}

TEST_F(UpdateCheckTest, MissingPackageFolderLeavesThePathOnTheCurrentDrive) {
    desktop->registry.keys.clear();
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    EXPECT_THAT(device->calls, ElementsAre("UpdateFromIniFile(\\Flash\\krxxupd.ini)"));
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(UpdateCheckTest, PackageFolderTooLongForADialogIsUpdatedFromAllTheSame) {
    desktop->registry.PutText(kKey, "FlashDir", std::string(250, 'p'));
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    EXPECT_THAT(device->calls,
                ElementsAre("UpdateFromIniFile(" + std::string(250, 'p') + "\\Flash\\krx)"));
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(UpdateCheckTest, SettingsOfThePackageAreReadAndNeverWritten) {
    SetPackageVersion("2.10.4");
    desktop->registry.PutText(kKey, "FlashUpdated", "1");
    const auto before = desktop->registry.keys;
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    desktop->prompts.ChooseFile("C:\\Pkg\\Flash\\a.ini");
    AnswerPrompt(kNoButton);
    EXPECT_TRUE(PressButton(kUpdateButton));
    EXPECT_EQ(TakeMessages().size(), 2u);
    EXPECT_EQ(desktop->registry.keys, before);
    EXPECT_THAT(desktop->registry.namesRead, ElementsAre("FlashDir", "FlashVersion"));
}

TEST_F(UpdateCheckTest, FailedUpdateIsReportedAndRefreshedAllTheSame) {
    device->answer = [](const std::string&) {
        contract::SetErrorInfo("description is missing");
        return Status::FromBits(0x80070002);
    };
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Programming Device update via INI-file failed", kCaption,
                                        Status::FromBits(0x80070002), "description is missing")));
    EXPECT_EQ(Listings(), 2u);
}

TEST_F(UpdateCheckTest, DeviceIsLeftAloneWhileItUpdates) {
    device->answer = [this](const std::string&) {
        EXPECT_FALSE(host.PollingEnabled());
        EXPECT_FALSE(State().refreshAllowed);
        EXPECT_EQ(desktop->cursorDepth, 2);
        RaiseState(7);
        return contract::kSuccess;
    };
    messageService->whileOpen = [this] {
        EXPECT_TRUE(State().refreshAllowed);
        EXPECT_FALSE(host.PollingEnabled());
    };
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(Listings(), 2u);
}

TEST_F(UpdateCheckTest, PollingIsResumedBeforeTheSecondRefresh) {
    bool isPolling = false;
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"},
                      [&] { isPolling = host.PollingEnabled(); });
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_TRUE(isPolling);
}

TEST_F(UpdateCheckTest, CursorOfTheUpdateIsRestoredBeforeTheSecondRefresh) {
    int depth = 0;
    faults->RunBefore({2, "ProgrammingDeviceControl.GetSelfTestResults"},
                      [&] { depth = desktop->cursorDepth; });
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    EXPECT_EQ(TakeMessages().size(), 1u);
    // Those of both refreshes and of the reading of the self-tests.
    EXPECT_EQ(depth, 3);
}

TEST_F(UpdateCheckTest, ControlsThatAreEnabledStaySoWhileThePackageIsInstalled) {
    AnswerPrompt(kNoButton);
    Connect(DeviceWithoutPackage());
    bool wasEnabled = false;
    device->answer = [&](const std::string&) {
        wasEnabled = IsEnabled(kUpdateButton);
        return contract::kSuccess;
    };
    AnswerPrompt(kYesButton);
    AnswerPrompt(kNoButton);
    RaiseState(7);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_TRUE(wasEnabled);
}

}
