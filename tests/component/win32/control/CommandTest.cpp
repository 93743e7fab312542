// Commands by mouse and keys, in the boxes, menus and dialogs of the system.

#include "tests/component/win32/control/ControlFixture.h"

#include "panel/control/PanelTemplate.h"
#include "panel/files/MenuContents.h"
#include "panel/files/PhoneFileUploadTemplate.h"
#include "panel/netconf/KRX10ConfTemplate.h"
#include "tests/frontend/win32/Input.h"
#include "tests/simulator/TemporaryFolder.h"

#include <filesystem>

namespace controltests {

namespace {

constexpr int kOk = 1;
constexpr int kYes = 6;
constexpr int kNo = 7;

class CommandTest : public ControlFixture {
protected:
    void SetUp() override {
        StartConnected();
        ASSERT_EQ(container.ActivateForUser(), S_OK);
        container.Pump();
    }

    const Calls& DeviceCalls() const { return host->device->calls; }
};

TEST_F(CommandTest, CloseButtonAsksTheHostToCloseThePanel) {
    EXPECT_TRUE(Press(panel::kCloseButton));
    EXPECT_EQ(host->viewControl->closeRequests, 1);
    EXPECT_TRUE(IsWindowVisible(container.View()));
}

TEST_F(CommandTest, DetailsButtonShowsTheSelfTests) {
    std::string title;
    prompts.ExpectDialog([&](conformance::IViewUser& user) {
        title = user.ShownTitle();
        EXPECT_TRUE(user.Press(kOk));
    });
    EXPECT_TRUE(Press(panel::kDetailsButton));
    EXPECT_EQ(title, "Startup Self-test statuses");
}

TEST_F(CommandTest, DeleteButtonDeletesTheSelectedFileAfterYes) {
    User().ClickRow(panel::kFileList, 1);
    prompts.ExpectBox(kYes);
    EXPECT_TRUE(Press(panel::kDeleteButton));
    EXPECT_EQ(DeviceCalls(), Calls{"DeleteFile(21, 2)"});
    ASSERT_EQ(prompts.Boxes().size(), 1u);
    EXPECT_EQ(prompts.Boxes()[0].caption, "Deleting files");
}

TEST_F(CommandTest, DeleteKeyDeletesNothingAfterNo) {
    User().ClickRow(panel::kFileList, 1);
    prompts.ExpectBox(kNo);
    container.Press(VK_DELETE);
    EXPECT_EQ(DeviceCalls(), Calls{});
    EXPECT_EQ(prompts.Boxes().size(), 1u);
}

TEST_F(CommandTest, DeleteChosenFromTheMenuDeletesTheFileClicked) {
    prompts.ExpectMenu(static_cast<int>(panel::FileContextMenuCommand::Delete));
    prompts.ExpectBox(kYes);
    EXPECT_TRUE(User().RightClickRow(panel::kFileList, 0));
    EXPECT_EQ(DeviceCalls(), Calls{"DeleteFile(19, 1)"});
}

TEST_F(CommandTest, ReportIsWrittenWhereTheUserSaves) {
    const simulator::CTemporaryFolder folder;
    prompts.ExpectFileDialog([&](conformance::IFileDialogUser& user) {
        EXPECT_TRUE(user.Accept(folder.PathOf("report.txt")));
    });
    prompts.ExpectBox(kOk);
    EXPECT_TRUE(Press(panel::kReportButton));
    EXPECT_GT(std::filesystem::file_size(folder.PathOf("report.txt")), 100u);
}

TEST_F(CommandTest, UpdateHandsTheChosenDescriptionToTheDevice) {
    const simulator::CTemporaryFolder folder;
    folder.Write("update.ini", "[Update]\n");
    prompts.ExpectFileDialog([&](conformance::IFileDialogUser& user) {
        EXPECT_TRUE(user.Accept(folder.PathOf("update.ini")));
    });
    prompts.ExpectBox(kOk);
    EXPECT_TRUE(Press(panel::kUpdateButton));
    EXPECT_EQ(DeviceCalls(), Calls{"UpdateFromIniFile(" + folder.PathOf("update.ini") + ")"});
}

TEST_F(CommandTest, ResetButtonResetsTheDevice) {
    EXPECT_TRUE(Press(panel::kResetButton));
    EXPECT_EQ(DeviceCalls(), Calls{"RequestMode(4)"});
}

TEST_F(CommandTest, NetworkDialogSendsItsValuesAfterOk) {
    prompts.ExpectDialog([&](conformance::IViewUser& user) {
        EXPECT_TRUE(user.TypeAddress(panel::kIpAddressEdit, 0xC0A80007));
        EXPECT_TRUE(user.TypeText(panel::kDescriptionEdit, "bench 4"));
        EXPECT_TRUE(user.Press(kOk));
    });
    EXPECT_TRUE(Press(panel::kNetworkButton));
    EXPECT_THAT(DeviceCalls(),
                testing::IsSupersetOf({"SetIpAddress(0x0700A8C0)", "SetSubnetMask(0x00FFFFFF)",
                                       "SetGateway(0xFE00A8C0)", "SetDescription(bench 4)",
                                       "ApplyConfiguration()"}));
}

TEST_F(CommandTest, NetworkDialogFormatsTheMediaThatAreTicked) {
    prompts.ExpectDialog([&](conformance::IViewUser& user) {
        EXPECT_TRUE(user.Toggle(panel::kInternalFlashBox));
        EXPECT_TRUE(user.Toggle(panel::kPcCardBox));
        EXPECT_TRUE(user.Press(kOk));
    });
    EXPECT_TRUE(Press(panel::kNetworkButton));
    EXPECT_THAT(DeviceCalls(),
                testing::IsSupersetOf({"PrepareMedia(1)", "PrepareMedia(2)", "ApplyConfiguration()",
                                       "RequestMode(1)", "RerunMediaTests(0x00012000)"}));
}

TEST_F(CommandTest, PhoneFileIsUploadedAsItsOptionsSay) {
    const simulator::CTemporaryFolder folder;
    folder.Write("phone.fia", "1");
    prompts.ExpectMenu(static_cast<int>(panel::FileContextMenuCommand::UploadPhoneFile));
    prompts.ExpectFileDialog([&](conformance::IFileDialogUser& user) {
        EXPECT_TRUE(user.Options().Choose(panel::kUploadMethodList, "Force"));
        EXPECT_TRUE(user.Options().Choose(panel::kUploadDestinationList, "Flash"));
        EXPECT_TRUE(user.Accept(folder.PathOf("phone.fia")));
    });
    EXPECT_TRUE(User().RightClickRow(panel::kFileList, 0));
    EXPECT_EQ(DeviceCalls(), Calls{"UploadPhoneFile(" + folder.PathOf("phone.fia") + ", 2, 1)"});
}

TEST_F(CommandTest, HelpButtonShowsTheHelpUntilTheControlEnds) {
    EXPECT_TRUE(Press(panel::kHelpButton));
    EXPECT_TRUE(prompts.IsHelpViewerShown());
    container.Release();
    EXPECT_FALSE(prompts.IsHelpViewerShown());
}

TEST_F(CommandTest, DeviceThatVanishesInsideACallIsReportedAndDisabled) {
    constexpr auto kNotConnected = contract::Status::FromBits(0x8007048F);
    host->device->inside = [&](const std::string& call) {
        if (call != "RequestMode(4)") {
            return contract::kSuccess;
        }
        host->RaiseState(5);
        return kNotConnected;
    };
    prompts.ExpectBox(kOk);
    EXPECT_TRUE(Press(panel::kResetButton));
    EXPECT_EQ(prompts.Boxes().at(0).text, "Resetting prommer.\nHRESULT 0x8007048f (-2147023729)");
    EXPECT_FALSE(IsWindowEnabled(container.Button(panel::kResetButton)));
}

}

}
