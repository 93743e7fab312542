#include "tests/panel/info/MaintenanceReportFixture.h"

namespace {

using namespace panel;
using namespace support;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace fs = std::filesystem;

class MaintenanceReportTest : public MaintenanceReportFixture {};

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

TEST_F(MaintenanceReportTest, DescriptionLeftMeanwhileIsToldWithThePath) {
    Start(Device(simulator::kKrx8));
    ReportWithErrorInfo(Path(), "the share is slow");
    EXPECT_THAT(TakeMessages(), ElementsAre(Saved(Path(), "the share is slow")));
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

}
