#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kUploadFpgaCode = 5;

struct UploadCase {
    const char* name;
    std::int32_t type;
    int command;
    std::vector<FileFilter> filters;
    std::string defaultExtension;
    std::string appended;  ///< to a name without extension
    std::string arguments; ///< after the path
    std::string failureText;
};

void PrintTo(const UploadCase& value, std::ostream* out) { *out << value.name; }

const FileFilter kAllFiles{"All files (*.*)", "*.*"};

class CodeUploadTest : public CommandFixture {
protected:
    void Choose(int command, const std::string& path = "C:\\code\\new.bin") {
        desktop->prompts.AnswerMenu(command);
        desktop->prompts.ChooseFile(path);
        ASSERT_TRUE(View().RightClick(kFileList, 0));
    }
    std::size_t Listings() const {
        return faults->Calls("ProgrammingDeviceControl.GetFileListing");
    }
};

class EachCodeUploadTest : public CodeUploadTest, public testing::WithParamInterface<UploadCase> {};

TEST_P(EachCodeUploadTest, ChosenFileIsUploadedAndEverythingReadAnew) {
    Start(GetParam().type);
    Choose(GetParam().command);
    EXPECT_THAT(device->calls,
                ElementsAre("UploadCode(C:\\code\\new.bin, " + GetParam().arguments + ")"));
    EXPECT_EQ(Listings(), 2u);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_P(EachCodeUploadTest, OpenDialogIsTheSystemsWithItsFilters) {
    Start(GetParam().type);
    Choose(GetParam().command);
    ASSERT_EQ(desktop->prompts.FileDialogs().size(), 1u);
    const headless::ShownFileDialog& shown = desktop->prompts.FileDialogs().front();
    EXPECT_EQ(shown.kind, headless::FileDialogKind::Open);
    EXPECT_EQ(shown.dialog.owner, Owner::Panel);
    EXPECT_EQ(shown.dialog.title, "");
    EXPECT_EQ(shown.dialog.filters, GetParam().filters);
    EXPECT_EQ(shown.dialog.fileName, "");
    EXPECT_EQ(shown.dialog.startFolder, "");
    EXPECT_EQ(shown.dialog.defaultExtension, GetParam().defaultExtension);
    EXPECT_EQ(shown.dialog.pathCapacity, 260u);
    EXPECT_EQ(shown.dialog.optionsTemplate, nullptr);
}

TEST_P(EachCodeUploadTest, FailureIsReportedWithoutRefresh) {
    Start(GetParam().type);
    device->answer = [](const std::string&) {
        contract::SetErrorInfo("checksum wrong");
        return Status::FromBits(0x8007000D);
    };
    Choose(GetParam().command);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport(GetParam().failureText, "Software upload",
                                        Status::FromBits(0x8007000D), "checksum wrong")));
    EXPECT_EQ(Listings(), 1u);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

TEST_P(EachCodeUploadTest, NameWithoutExtensionGetsTheFiltersFirstLetters) {
    Start(GetParam().type);
    Choose(GetParam().command, "C:\\code\\new");
    EXPECT_THAT(device->calls, ElementsAre("UploadCode(C:\\code\\new" + GetParam().appended + ", " +
                                           GetParam().arguments + ")"));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, EachCodeUploadTest,
    testing::Values(UploadCase{"FPGA",
                               1,
                               5,
                               {{"Fpga files (*.bin)", "*.bin"}, kAllFiles},
                               "Fpga files (*.bin)|*.bin|All files (*.*)|*.*|",
                               ".Fpg",
                               "0, -1, 0",
                               "FPGA code updating failed"},
                    UploadCase{"Application",
                               2,
                               6,
                               {{"Application files (*.bin)", "*.bin"}, kAllFiles},
                               "Application files (*.bin)|*.bin|All files (*.*)|*.*|",
                               ".App",
                               "1, -1, 1",
                               "Application code updating failed"},
                    UploadCase{"Rs232",
                               1,
                               7,
                               {{"Application files (*.bin)", "*.bin"}, kAllFiles},
                               "Application files (*.bin)|*.bin|All files (*.*)|*.*|",
                               ".App",
                               "1, -1, 0",
                               "Application code updating failed"},
                    UploadCase{"Krx10Image",
                               3,
                               8,
                               {{"KRX-10 image (*.krx10)", "*.krx10"}, kAllFiles},
                               "KRX-10 image (*.krx10)|*.krx10|All files (*.*)|*.*|",
                               ".KRX",
                               "-1, -1, -1",
                               "KRX-10 software image upload failed"},
                    UploadCase{"Krx20Image",
                               4,
                               9,
                               {{"KRX-20 image (*.krx20)", "*.krx20"}, kAllFiles},
                               "KRX-20 image (*.krx20)|*.krx20|All files (*.*)|*.*|",
                               ".KRX",
                               "-1, -1, -1",
                               "KRX-20 software image upload failed"},
                    UploadCase{"Krx21Image",
                               5,
                               9,
                               {{"KRX-20 image (*.krx20)", "*.krx20"}, kAllFiles},
                               "KRX-20 image (*.krx20)|*.krx20|All files (*.*)|*.*|",
                               ".KRX",
                               "-1, -1, -1",
                               "KRX-20 software image upload failed"}),
    [](const auto& upload) { return upload.param.name; });

TEST_F(CodeUploadTest, CancelledDialogCallsNothingAndLeavesTheControls) {
    Start(simulator::kKrx8);
    desktop->prompts.AnswerMenu(kUploadFpgaCode);
    desktop->prompts.AnswerFileDialog([&](headless::CHeadlessFileDialog& dialog) {
        EXPECT_TRUE(IsEnabled(kFileList));
        EXPECT_EQ(desktop->cursorDepth, 0);
        dialog.Cancel();
    });
    View().RightClick(kFileList, 0);
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_TRUE(IsEnabled(kFileList));
    EXPECT_EQ(faults->Calls("ProductInformation.GetProductDetection"), 0u);
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(CodeUploadTest, FailingDialogIsSilent) {
    Start(simulator::kKrx8);
    desktop->prompts.AnswerMenu(kUploadFpgaCode);
    desktop->prompts.AnswerFileDialog(
        [](headless::CHeadlessFileDialog& dialog) { dialog.Fail(0x3001); });
    View().RightClick(kFileList, 0);
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(CodeUploadTest, EmptyPathStopsLikeACancel) {
    Start(simulator::kKrx8);
    Choose(kUploadFpgaCode, "");
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_TRUE(IsEnabled(kFileList));
}

TEST_F(CodeUploadTest, DeviceIsLeftAloneByPollingEventsAndUserMeanwhile) {
    Start(simulator::kKrx8);
    device->answer = [this](const std::string&) {
        EXPECT_FALSE(host.PollingEnabled());
        EXPECT_FALSE(State().refreshAllowed);
        EXPECT_FALSE(IsEnabled(kFileList));
        EXPECT_FALSE(IsEnabled(kDeleteButton));
        EXPECT_EQ(desktop->cursorDepth, 1);
        RaiseState(7);
        return contract::kSuccess;
    };
    Choose(kUploadFpgaCode);
    EXPECT_EQ(Listings(), 2u);
    EXPECT_TRUE(IsEnabled(kFileList));
}

TEST_F(CodeUploadTest, RefreshRunsWhilePollingIsSuspended) {
    Start(simulator::kKrx8);
    bool isPolling = true;
    int lastCursorDepth = 0;
    faults->RunBefore({2, "ProgrammingDeviceControl.GetFileListing"},
                      [&] { isPolling = host.PollingEnabled(); });
    faults->RunBefore({2, "ProductDetectionControl.SetPollingEnabled"},
                      [&] { lastCursorDepth = desktop->cursorDepth; });
    Choose(kUploadFpgaCode);
    EXPECT_FALSE(isPolling);
    EXPECT_EQ(lastCursorDepth, 1);
    EXPECT_TRUE(host.PollingEnabled());
}

TEST_F(CodeUploadTest, PollingIsSuspendedBeforeRefreshesAreHeldBack) {
    Start(simulator::kKrx8);
    std::vector<bool> allowed;
    const auto look = [&] { allowed.push_back(State().refreshAllowed); };
    faults->RunAfter({1, "ProductDetectionControl.SetPollingEnabled"}, look);
    faults->RunBefore({1, "ProgrammingDeviceControl.UploadCode"}, look);
    faults->RunAfter({1, "ProgrammingDeviceControl.UploadCode"}, look);
    faults->RunBefore({2, "ProductDetectionControl.SetPollingEnabled"}, look);
    Choose(kUploadFpgaCode);
    EXPECT_THAT(allowed, ElementsAre(true, false, false, true));
}

TEST_F(CodeUploadTest, FlagIsSetAgainBeforeTheReportAndPollingAfterIt) {
    Start(simulator::kKrx8);
    FailCall("UploadCode(C:\\code\\new.bin, 0, -1, 0)");
    messageService->whileOpen = [&] {
        EXPECT_TRUE(State().refreshAllowed);
        EXPECT_FALSE(host.PollingEnabled());
        EXPECT_FALSE(IsEnabled(kUpdateButton));
        EXPECT_EQ(desktop->cursorDepth, 1);
    };
    Choose(kUploadFpgaCode);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_TRUE(host.PollingEnabled());
}

TEST_F(CodeUploadTest, FailedUploadLeavesDetailsDisabled) {
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx8);
    description.selfTests[contract::SelfTest::Usb] = 1;
    Start(description);
    ASSERT_TRUE(IsEnabled(kDetailsButton));
    FailCall("UploadCode(C:\\code\\new.bin, 0, -1, 0)");
    Choose(kUploadFpgaCode);
    TakeMessages();
    EXPECT_FALSE(IsEnabled(kDetailsButton));
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

}
