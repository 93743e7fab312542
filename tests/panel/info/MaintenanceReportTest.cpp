#include "tests/support/CommandFixture.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace fs = std::filesystem;

constexpr const char* kCaption = "Generate info report.";

class MaintenanceReportTest : public CommandFixture {
protected:
    void SetUp() override {
        m_folder = fs::temp_directory_path() /
                   ("report-" + std::to_string(reinterpret_cast<std::uintptr_t>(this)));
        fs::remove_all(m_folder);
        fs::create_directory(m_folder);
    }
    void TearDown() override {
        fs::permissions(m_folder, fs::perms::owner_all);
        fs::remove_all(m_folder);
        CommandFixture::TearDown();
    }

    /// A device of that type with every version set.
    static simulator::DeviceDescription Device(std::int32_t type) {
        simulator::DeviceDescription description = HealthyDevice(type);
        description.software.security = "sec 1";
        description.software.fpgaDriver = "fdrv 2";
        description.software.mmcrDriver = "mmcr 3";
        description.software.usbDeviceFunctionDriver = "udf 4";
        description.software.usbHostControllerDriver = "uhc 5";
        description.software.bootLoader = "loader 6";
        description.software.serviceFpga = "sfpga 7";
        return description;
    }

    std::string Path(const std::string& name = "report.txt") const {
        return (m_folder / name).string();
    }
    static std::string Content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return (std::ostringstream() << file.rdbuf()).str();
    }
    void Report(const std::string& path) {
        desktop->prompts.ChooseFile(path);
        ASSERT_TRUE(PressButton(kReportButton));
    }
    static Shown Saved(const std::string& path) {
        return {"Information about the Programming Device is saved.\n\nThe full path to the report "
                "file is:\n" +
                    path,
                kCaption, 0x40, 0, ""};
    }

    fs::path m_folder;
};

TEST_F(MaintenanceReportTest, Krx20ReportHoldsItsLines) {
    Start(Device(simulator::kKrx20));
    Report(Path());
    EXPECT_EQ(Content(Path()), "KRX-20 MAINTENANCE INFO\r\n"
                               "DATE: 20.11.2026\tTIME: 14:05\r\n"
                               "SERIAL NUMBER : 00-00-5E-00-53-14\r\n"
                               "BOOT SW VER : boot 1.02\r\n"
                               "APPLICATION SW VER : app 3.04\r\n"
                               "FPGA CODE VER : fpga 5.06\r\n"
                               "SERVICE FPGA VER : sfpga 7\r\n"
                               "BOOT LOADER VER : loader 6\r\n"
                               "HW VERSION : HW 2.1\r\n"
                               "FLASH SIZE (MB) : 8\r\n"
                               "SRAM SIZE (MB) : 2\r\n");
    EXPECT_THAT(TakeMessages(), ElementsAre(Saved(Path())));
}

TEST_F(MaintenanceReportTest, Krx20IsAskedInOrder) {
    Start(Device(simulator::kKrx21));
    Report(Path());
    TakeMessages();
    EXPECT_THAT(TakeCalls(),
                ElementsAre("ProgrammingDeviceControl.GetSoftwareInfo",
                            "SoftwareInfo.QueryKrx20SwInfo", "Krx20SwInfo.GetTypeInfo",
                            "Krx20SwInfo.GetBootLoaderVersion", "Krx20SwInfo.GetServiceFpgaVersion",
                            // the box that says where the report is
                            "Context.QueryMessageService", "MessageService.ShowMessage"));
}

TEST_F(MaintenanceReportTest, Krx10ReportRepeatsTheMmcrVersion) {
    Start(Device(simulator::kKrx10));
    Report(Path());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(Content(Path()), HasSubstr("KRX-10 MAINTENANCE INFO\r\n"));
    EXPECT_THAT(Content(Path()), HasSubstr("FPGA CODE VER : fpga 5.06\r\n"
                                           "FPGA DRIVER VER : fdrv 2\r\n"
                                           "MMCR DRIVER VER : mmcr 3\r\n"
                                           "USB DF DRIVER VER : udf 4\r\n"
                                           "USB HOST DRIVER VER : uhc 5\r\n"
                                           "ZTWCDC DRIVER VER : mmcr 3\r\n"
                                           "HW VERSION : HW 2.1\r\n"));
    EXPECT_EQ(faults->Calls("SoftwareInfo.GetMmcrDriverVersion"), 2u);
}

TEST_F(MaintenanceReportTest, Krx8ReportHasTheSecurityLineAndNoDriverLine) {
    Start(Device(simulator::kKrx8));
    Report(Path());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(Content(Path()), HasSubstr("KRX-8 / KRX-8C MAINTENANCE INFO\r\n"));
    EXPECT_THAT(Content(Path()), HasSubstr("SERIAL NUMBER : 4711\r\n"));
    EXPECT_THAT(Content(Path()), HasSubstr("SECURITY SW VER : sec 1\r\n"));
    EXPECT_THAT(Content(Path()), Not(HasSubstr("DRIVER")));
}

TEST_F(MaintenanceReportTest, EmptySecurityVersionTakesNoLine) {
    simulator::DeviceDescription description = Device(simulator::kKrx8c);
    description.software.security.clear();
    Start(description);
    Report(Path());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(Content(Path()), Not(HasSubstr("SECURITY")));
}

TEST_F(MaintenanceReportTest, VersionIsCutTo80Bytes) {
    simulator::DeviceDescription description = Device(simulator::kKrx8);
    description.software.security = std::string(100, 's');
    Start(description);
    Report(Path());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(Content(Path()), HasSubstr("SECURITY SW VER : " + std::string(80, 's') + "\r\n"));
}

TEST_F(MaintenanceReportTest, FieldsAreTakenAsShown) {
    Start(Device(simulator::kKrx8));
    View().SetText(kSerialNumberField, std::string(30, '9'));
    View().SetText(kBootSwField, std::string(90, 'b'));
    View().SetText(kFlashSizeField, "16777215");
    View().SetText(kRamSizeField, "");
    Report(Path());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(Content(Path()), HasSubstr("SERIAL NUMBER : " + std::string(19, '9') + "\r\n"));
    EXPECT_THAT(Content(Path()), HasSubstr("BOOT SW VER : " + std::string(79, 'b') + "\r\n"));
    EXPECT_THAT(Content(Path()), HasSubstr("FLASH SIZE (MB) : 15\r\nSRAM SIZE (MB) : 0\r\n"));
}

TEST_F(MaintenanceReportTest, FieldsAreReadBeforeTheDeviceIsAsked) {
    Start(Device(simulator::kKrx8));
    faults->RunBefore({2, "ProgrammingDeviceControl.GetSoftwareInfo"},
                      [this] { View().SetText(kSerialNumberField, "changed"); });
    Report(Path());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(Content(Path()), HasSubstr("SERIAL NUMBER : 4711\r\n"));
}

TEST_F(MaintenanceReportTest, SaveDialogIsAsDescribed) {
    Start(Device(simulator::kKrx10));
    desktop->prompts.CancelFileDialog();
    PressButton(kReportButton);
    const headless::ShownFileDialog& shown = desktop->prompts.FileDialogs().front();
    EXPECT_EQ(shown.kind, headless::FileDialogKind::Save);
    EXPECT_EQ(shown.dialog.owner, Owner::Panel);
    EXPECT_EQ(shown.dialog.title, "File and folder where the report will be saved");
    EXPECT_THAT(shown.dialog.filters, ElementsAre(FileFilter{"Text documents (*.txt)", "*.txt"},
                                                  FileFilter{"All files", "*.*"}));
    EXPECT_EQ(shown.dialog.fileName, "krx10maintenance.txt");
    EXPECT_EQ(shown.dialog.startFolder, fs::current_path().string());
    EXPECT_EQ(shown.dialog.defaultExtension, "txt");
}

TEST_F(MaintenanceReportTest, CancelWritesAndShowsNothing) {
    Start(Device(simulator::kKrx10));
    desktop->prompts.CancelFileDialog();
    PressButton(kReportButton);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_TRUE(fs::is_empty(m_folder));
}

TEST_F(MaintenanceReportTest, ExistingReportIsReplacedWithoutAQuestion) {
    Start(Device(simulator::kKrx8));
    std::ofstream(Path()) << std::string(10000, 'x');
    Report(Path());
    EXPECT_THAT(TakeMessages(), ElementsAre(Saved(Path())));
    EXPECT_THAT(Content(Path()), Not(HasSubstr("xx")));
}

TEST_F(MaintenanceReportTest, FileThatCannotBeOpenedIsReported) {
    Start(Device(simulator::kKrx8));
    Report(Path("missing/report.txt"));
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Shown{"Error in printing report to file.", kCaption, 0x10, 0, ""}));
}

TEST_F(MaintenanceReportTest, WriteErrorsAreIgnored) {
    ASSERT_TRUE(fs::exists("/dev/full")) << "this system has no device that is always full";
    fs::create_symlink("/dev/full", Path("full.txt"));
    Start(Device(simulator::kKrx8));
    Report(Path("full.txt"));
    EXPECT_THAT(TakeMessages(), ElementsAre(Saved(Path("full.txt"))));
}

TEST_F(MaintenanceReportTest, LongPathIsCutInTheMessage) {
    Start(Device(simulator::kKrx8));
    const std::string folder = std::string(100, 'd') + "/" + std::string(100, 'e');
    fs::create_directories(m_folder / folder);
    const std::string path = Path(folder + "/r.txt");
    desktop->prompts.AnswerFileDialog(
        [&](headless::CHeadlessFileDialog& dialog) { dialog.Accept(path); });
    PressButton(kReportButton);
    const std::string text = "Information about the Programming Device is saved.\n\nThe full path "
                             "to the report file is:\n" +
                             path;
    EXPECT_EQ(TakeMessages().front().text, text.substr(0, 300));
    EXPECT_TRUE(fs::exists(path));
}

TEST_F(MaintenanceReportTest, WithoutMessageServiceTheBoxEndsWithTheStatus) {
    Start(Device(simulator::kKrx8));
    host.SetMessageService(nullptr);
    desktop->prompts.ChooseFile(Path());
    desktop->prompts.Answer(1);
    PressButton(kReportButton);
    EXPECT_TRUE(desktop->prompts.Boxes().front().text.ends_with("\r\nHRESULT 0x00000000 (0)"));
}

TEST_F(MaintenanceReportTest, WaitCursorShowsAllTheWhile) {
    Start(Device(simulator::kKrx8));
    desktop->prompts.AnswerFileDialog([&](headless::CHeadlessFileDialog& dialog) {
        EXPECT_EQ(desktop->cursorDepth, 1);
        dialog.Accept(Path());
    });
    PressButton(kReportButton);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(desktop->cursorDepth, 0);
}

// Failures

struct FailureCase {
    std::int32_t type;
    const char* operation;
    std::size_t number; ///< of the calls of that operation, the connecting included
    const char* text;
    bool deliversObject = false;
};

void PrintTo(const FailureCase& value, std::ostream* out) { *out << value.operation; }

class FailingReportTest : public MaintenanceReportTest,
                          public testing::WithParamInterface<FailureCase> {};

TEST_P(FailingReportTest, FailureIsShownAndNoFileAskedFor) {
    Start(Device(GetParam().type));
    const auto wrappers = interception.LiveWrappers();
    faults->Fail({GetParam().number, GetParam().operation},
                 {Status::FromBits(0x8007001F), "no answer"});
    PressButton(kReportButton);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport(GetParam().text, kCaption, Status::FromBits(0x8007001F),
                                        "no answer")));
    EXPECT_THAT(desktop->prompts.FileDialogs(), IsEmpty());
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

INSTANTIATE_TEST_SUITE_P(
    Calls, FailingReportTest,
    testing::Values(FailureCase{1, "ProgrammingDeviceControl.GetSoftwareInfo", 2,
                                "Software Info request failed"},
                    FailureCase{1, "SoftwareInfo.GetSecuritySwVersion", 1,
                                "Security Software version retrieving failed"},
                    FailureCase{3, "SoftwareInfo.GetFpgaDriverVersion", 1,
                                "FPGA driver version retrieving failed"},
                    FailureCase{3, "SoftwareInfo.GetMmcrDriverVersion", 1,
                                "MMCR driver version retrieving failed"},
                    FailureCase{3, "SoftwareInfo.GetUsbDeviceFunctionDriverVersion", 1,
                                "USB Device Function driver version retrieving failed"},
                    FailureCase{3, "SoftwareInfo.GetUsbHostControllerDriverVersion", 1,
                                "USB Host Controller driver version retrieving failed"},
                    FailureCase{3, "SoftwareInfo.GetMmcrDriverVersion", 2,
                                "ZTWCDC driver version retrieving failed"},
                    FailureCase{4, "SoftwareInfo.QueryKrx20SwInfo", 1,
                                "IKrx20SwInfo instance query failed"},
                    FailureCase{4, "Krx20SwInfo.GetTypeInfo", 1, "Type Info retrieving failed"},
                    FailureCase{4, "Krx20SwInfo.GetBootLoaderVersion", 1,
                                "Boot Loader version retrieving failed"},
                    FailureCase{4, "Krx20SwInfo.GetServiceFpgaVersion", 1,
                                "Service Mode FPGA code version retrieving failed"}));

TEST_F(MaintenanceReportTest, NullObjectsCountAsFailures) {
    Start(Device(simulator::kKrx20));
    faults->DeliverNull({2, "ProgrammingDeviceControl.GetSoftwareInfo"});
    PressButton(kReportButton);
    faults->DeliverNull({1, "SoftwareInfo.QueryKrx20SwInfo"});
    PressButton(kReportButton);
    faults->DeliverNull({1, "Krx20SwInfo.GetTypeInfo"});
    PressButton(kReportButton);
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport("Software Info request failed", kCaption,
                                                        Status::FromBits(0x80004003)),
                                            ErrorReport("IKrx20SwInfo instance query failed",
                                                        kCaption, Status::FromBits(0x80004002)),
                                            ErrorReport("Type Info retrieving failed", kCaption,
                                                        Status::FromBits(0x80004003))));
}

}
