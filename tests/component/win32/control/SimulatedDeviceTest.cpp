// The simulator as a device in COM: what the control does with it is what a user sees.

#include "tests/component/win32/control/SimulatedDeviceFixture.h"

#include "frontend/win32/Text.h"
#include "panel/control/PanelTemplate.h"
#include "panel/files/MenuContents.h"
#include "panel/update/RegUpdate.h"
#include "panel/update/SWUpdateInfoTemplate.h"

#include <filesystem>

namespace controltests {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr int kOk = 1;
constexpr int kYes = 6;
constexpr int kNo = 7;
constexpr int kUploadPhoneFile = static_cast<int>(panel::FileContextMenuCommand::UploadPhoneFile);

class SimulatedDeviceTest : public SimulatedDeviceFixture {};

TEST_F(SimulatedDeviceTest, Krx8IsShownAsItsFolderSays) {
    StartWithSample("krx-8");
    EXPECT_EQ(Field(panel::kSerialNumberField), "80412377");
    EXPECT_EQ(Field(panel::kHardwareField), "HW 3.1");
    EXPECT_EQ(Field(panel::kFlashSizeField), "4194304");
    EXPECT_EQ(Field(panel::kRamSizeField), "1048576");
    EXPECT_EQ(Field(panel::kBootSwField), "1.14");
    EXPECT_EQ(Field(panel::kFpgaField), "0.93");
    EXPECT_EQ(Field(panel::kApplicationSwField), "4.07.2");
    EXPECT_EQ(Field(panel::kSelfTestField), "TEST OK");
    EXPECT_EQ(RowCount(), 12);
    EXPECT_THAT(Row(RowOf("nor16_alg.fia")),
                ElementsAre("nor16_alg.fia", "Algo", "1", "1.21", "9216", "Flash", "QX1"));
}

TEST_F(SimulatedDeviceTest, Krx20IsShownAsItsFolderSays) {
    StartWithSample("krx-20");
    EXPECT_EQ(Field(panel::kHardwareField), "C1.2");
    EXPECT_EQ(Field(panel::kFlashSizeField), "67108864");
    EXPECT_EQ(Field(panel::kRamSizeField), "33554432");
    EXPECT_EQ(Field(panel::kBootSwField), "3.02");
    EXPECT_EQ(Field(panel::kFpgaField), "1.18");
    EXPECT_EQ(Field(panel::kApplicationSwField), "2.5.13");
    EXPECT_EQ(Field(panel::kIpAddressField), "192.0.2.20");
    EXPECT_EQ(RowCount(), 14);
    EXPECT_THAT(Row(RowOf("emmc_alg.fg")),
                ElementsAre("emmc_alg.fg", "Algo", "13", "0.9.40", "31744", "PCCard", "QX3"));
}

TEST_F(SimulatedDeviceTest, ModeThatTheDeviceReportsIsLogged) {
    StartWithSample("krx-20");
    EXPECT_THAT(Log(), HasSubstr("Programming Device is in Normal mode\r\n"));
    LONG mode = 0;
    EXPECT_EQ(container.As<IKRX8Maintenance>()->get_DeviceMode(&mode), S_OK);
    EXPECT_EQ(mode, 1);
}

TEST_F(SimulatedDeviceTest, ConnectedControlHasOneSinkAtEachSource) {
    StartWithSample("krx-20");
    EXPECT_EQ(simulated.ContextMemberCount(), 1u);
    EXPECT_EQ(simulated.DeviceSubscriberCount(), 1u);
    EXPECT_EQ(simulated.ConnectionSubscriberCount(), 1u);
    container.Release();
    EXPECT_EQ(simulated.ContextMemberCount(), 0u);
    EXPECT_EQ(simulated.DeviceSubscriberCount(), 0u);
    EXPECT_EQ(simulated.ConnectionSubscriberCount(), 0u);
}

TEST_F(SimulatedDeviceTest, UploadedPhoneFileIsLoggedStoredAndSelected) {
    StartWithSample("krx-20");
    ChooseWithFile(kUploadPhoneFile, PackageFile("Flash/krxx/ridley_2nd.fg"));
    EXPECT_THAT(Log(), HasSubstr("Flashing ridley_2nd.fg 100%\r\n"));
    EXPECT_EQ(RowCount(), 15);
    EXPECT_THAT(SelectedNames(), ElementsAre("ridley_2nd.fg"));
    EXPECT_TRUE(std::filesystem::exists(folder.PathOf("device/files/ridley_2nd.fg")));
}

TEST_F(SimulatedDeviceTest, Krx8TakesNewerPhoneFileInPlaceOfItsOwn) {
    StartWithSample("krx-8");
    ChooseWithFile(kUploadPhoneFile, PackageFile("Flash/krx8/nor16_alg.fia"));
    EXPECT_EQ(RowCount(), 12);
    EXPECT_THAT(SelectedNames(), ElementsAre("nor16_alg.fia"));
    EXPECT_THAT(Row(RowOf("nor16_alg.fia")),
                ElementsAre("nor16_alg.fia", "Algo", "1", "1.30", "9728", "Flash", "QX1"));
}

TEST_F(SimulatedDeviceTest, ApplicationCodeChosenFromTheMenuIsLoaded) {
    StartWithSample("krx-8");
    ChooseWithFile(static_cast<int>(panel::FileContextMenuCommand::UploadApplicationCode),
                   PackageFile("Flash/krx8/krx8_application.bin"));
    EXPECT_THAT(Log(), HasSubstr("Programming Device is in Maintenance mode\r\n"));
    EXPECT_THAT(Log(), HasSubstr("100%\r\nProgramming Device is in Normal mode\r\n"));
    EXPECT_EQ(Field(panel::kApplicationSwField), "4.20.0");
}

TEST_F(SimulatedDeviceTest, SoftwareImageChosenFromTheMenuIsLoaded) {
    StartWithSample("krx-20");
    ChooseWithFile(static_cast<int>(panel::FileContextMenuCommand::UpdateKrx20Software),
                   PackageFile("Flash/krxx/software.krx20"));
    EXPECT_EQ(Field(panel::kApplicationSwField), "2.8.0");
    EXPECT_EQ(Field(panel::kBootSwField), "3.05");
    EXPECT_EQ(Field(panel::kFpgaField), "1.21");
}

TEST_F(SimulatedDeviceTest, CodeOfAnotherModelIsReportedAndNotLoaded) {
    StartWithSample("krx-8");
    prompts.ExpectMenu(static_cast<int>(panel::FileContextMenuCommand::UploadApplicationCode));
    prompts.ExpectFileDialog([&](conformance::IFileDialogUser& user) {
        EXPECT_TRUE(user.Accept(PackageFile("Flash/krx8/krx8c_application.bin")));
    });
    prompts.ExpectBox(kOk);
    EXPECT_TRUE(User().RightClickRow(panel::kFileList, 0));
    ASSERT_EQ(prompts.Boxes().size(), 1u);
    EXPECT_THAT(prompts.Boxes()[0].text,
                HasSubstr("Application code updating failed\nHRESULT 0x8007000d"));
    EXPECT_EQ(Field(panel::kApplicationSwField), "4.07.2");
}

TEST_F(SimulatedDeviceTest, ResetLogsTheModesThatTheDeviceGoesThrough) {
    StartWithSample("krx-8");
    EXPECT_TRUE(Press(panel::kResetButton));
    EXPECT_THAT(Log(), HasSubstr("Programming Device is in Maintenance mode\r\n"
                                 "Programming Device is in Normal mode\r\n"));
    EXPECT_EQ(RowCount(), 12);
    EXPECT_TRUE(IsEnabled(panel::kResetButton));
}

TEST_F(SimulatedDeviceTest, DeletedFileIsGoneFromListAndFolder) {
    StartWithSample("krx-20");
    User().ClickRow(panel::kFileList, RowOf("emmc_alg.fg"));
    prompts.ExpectBox(kYes);
    EXPECT_TRUE(Press(panel::kDeleteButton));
    EXPECT_EQ(RowCount(), 13);
    EXPECT_FALSE(std::filesystem::exists(folder.PathOf("device/files/emmc_alg.fg")));
}

/// What makes a device go away inside a call of an operation.
std::string LostInside(const std::string& operation, int call) {
    return R"("loss": { "operation": "ProgrammingDeviceControl.)" + operation + R"(", "call": )" +
           std::to_string(call) + " },\n  ";
}

TEST_F(SimulatedDeviceTest, DeviceUnpluggedInsideUploadIsReportedOnceAndComesBack) {
    StartWithSample("krx-8", LostInside("UploadPhoneFile", 1));
    prompts.ExpectMenu(kUploadPhoneFile);
    prompts.ExpectFileDialog([&](conformance::IFileDialogUser& user) {
        EXPECT_TRUE(user.Accept(PackageFile("Flash/krx8/nor16_alg.fia")));
    });
    prompts.ExpectBox(kOk);
    EXPECT_TRUE(User().RightClickRow(panel::kFileList, 0));
    ASSERT_EQ(prompts.Boxes().size(), 1u);
    EXPECT_THAT(prompts.Boxes()[0].text, HasSubstr("0x8007048f"));
    simulated.BringBackLostDevice();
    EXPECT_EQ(RowCount(), 12);
    EXPECT_TRUE(IsEnabled(panel::kDeleteButton));
    EXPECT_EQ(prompts.Boxes().size(), 1u);
}

TEST_F(SimulatedDeviceTest, DeviceUnpluggedInsideResetDisablesItsControls) {
    // The first request is that for the mode.
    StartWithSample("krx-20", LostInside("RequestMode", 2));
    prompts.ExpectBox(kOk);
    EXPECT_TRUE(Press(panel::kResetButton));
    ASSERT_EQ(prompts.Boxes().size(), 1u);
    EXPECT_THAT(prompts.Boxes()[0].text, HasSubstr("Resetting prommer."));
    for (const int button : {panel::kResetButton, panel::kUpdateButton, panel::kDeleteButton,
                             panel::kReportButton, panel::kFileList, panel::kNetworkButton}) {
        EXPECT_FALSE(IsEnabled(button)) << button;
    }
    simulated.BringBackLostDevice();
    EXPECT_TRUE(IsEnabled(panel::kResetButton));
    EXPECT_EQ(Field(panel::kApplicationSwField), "2.5.13");
    EXPECT_THAT(Log(), HasSubstr("Programming Device is in Normal mode\r\n"));
    EXPECT_EQ(simulated.DeviceSubscriberCount(), 1u);
}

/// A machine with an update package, as this process sees it until the end.
class UpdateOfferTest : public SimulatedDeviceTest {
protected:
    UpdateOfferTest() {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, kMachine, 0, nullptr, REG_OPTION_NON_VOLATILE,
                                  KEY_ALL_ACCESS, nullptr, &key, nullptr),
                  0);
        EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, key), 0);
        RegCloseKey(key);
        PackageFile("");
        Set(L"FlashDir", win32::ToWide(folder.PathOf("package")));
        Set(L"FlashVersion", L"5.2.0");
    }
    ~UpdateOfferTest() override {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, kMachine);
    }

    void ExpectOffer(int answer) {
        prompts.ExpectDialog([this, answer](conformance::IViewUser& user) {
            offered = user.ShownText(panel::kPackageVersionText) + " for " +
                      user.ShownText(panel::kDeviceVersionText);
            EXPECT_TRUE(user.Press(static_cast<panel::ControlId>(answer)));
        });
    }

    std::string offered;

private:
    static constexpr const wchar_t* kMachine = L"SOFTWARE\\krx8-test-machine";

    static void Set(const wchar_t* name, const std::wstring& text) {
        const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE,
                                  win32::ToWide(panel::kUpdateSettingsKey).c_str(), name, REG_SZ,
                                  text.c_str(), size),
                  0);
    }
};

TEST_F(UpdateOfferTest, AcceptedPackageIsInstalledAndNotOfferedAgain) {
    ExpectOffer(kYes);
    prompts.ExpectBox(kOk);
    StartWithSample("krx-8");
    EXPECT_EQ(offered, "005.002.000 for 004.007.002");
    ASSERT_EQ(prompts.Boxes().size(), 1u);
    EXPECT_EQ(prompts.Boxes()[0].text, "Prommer SW updated succesfully.\nHRESULT 0x00000000 (0)");
    EXPECT_EQ(Field(panel::kApplicationSwField), "4.20.0");
    EXPECT_THAT(Log(), HasSubstr("Programming Device is: 005.002.000\r\n"));
}

TEST_F(UpdateOfferTest, OfferToADeactivatedControlKeepsTheUserOutOfTheHost) {
    ExpectOffer(kNo);
    StartWithSample("krx-8");
    container.As<IOleInPlaceObject>()->InPlaceDeactivate();
    bool isHostEnabled = true;
    prompts.ExpectDialog([&](conformance::IViewUser& user) {
        isHostEnabled = IsWindowEnabled(window->Get());
        EXPECT_TRUE(user.Press(static_cast<panel::ControlId>(kNo)));
    });
    simulated.RaiseConnectionState(contract::kSuccess, 7);
    EXPECT_FALSE(isHostEnabled);
    EXPECT_TRUE(IsWindowEnabled(window->Get()));
}

TEST_F(UpdateOfferTest, RefusedPackageLeavesTheDevice) {
    ExpectOffer(kNo);
    StartWithSample("krx-20");
    EXPECT_EQ(offered, "005.002.000 for 002.005.013");
    EXPECT_EQ(Field(panel::kApplicationSwField), "2.5.13");
    EXPECT_THAT(Log(), Not(HasSubstr("%")));
    EXPECT_TRUE(IsEnabled(panel::kUpdateButton));
}

}

}
