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

TEST_F(MaintenanceReportTest, LongVersionsAreCutTo79Bytes) {
    Start(Device(simulator::kKrx8));
    const std::string text = std::string(79, 'v') + "w";
    for (const ControlId field : {217, 219, 218, 212}) {
        View().SetText(field, text);
    }
    Report(Path());
    EXPECT_EQ(TakeMessages().size(), 1u);
    const std::string shown = " : " + std::string(79, 'v') + "\r\n";
    for (const char* label : {"BOOT SW VER", "APPLICATION SW VER", "FPGA CODE VER", "HW VERSION"}) {
        EXPECT_THAT(Content(Path()), HasSubstr("\r\n" + (label + shown)));
    }
}

TEST_F(MaintenanceReportTest, SizesAreUnsignedAndZeroWithoutANumber) {
    Start(Device(simulator::kKrx8));
    const auto sizes = [this](const char* flash, const char* ram) {
        View().SetText(213, flash);
        View().SetText(215, ram);
        Report(Path());
        EXPECT_EQ(TakeMessages().size(), 1u);
        const std::string report = Content(Path());
        return report.substr(report.find("FLASH"));
    };
    EXPECT_EQ(sizes("4294967295", "3221225472"),
              "FLASH SIZE (MB) : 4095\r\nSRAM SIZE (MB) : 3072\r\n");
    EXPECT_EQ(sizes("unknown", "n/a"), "FLASH SIZE (MB) : 0\r\nSRAM SIZE (MB) : 0\r\n");
    EXPECT_EQ(sizes("", "1048576"), "FLASH SIZE (MB) : 0\r\nSRAM SIZE (MB) : 1\r\n");
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

TEST_F(MaintenanceReportTest, WaitCursorShowsFromTheFirstCallToTheBox) {
    Start(Device(simulator::kKrx8));
    std::vector<int> depths;
    const auto look = [&] { depths.push_back(desktop->cursorDepth); };
    faults->RunBefore({2, "ProgrammingDeviceControl.GetSoftwareInfo"}, look);
    messageService->whileOpen = look;
    desktop->prompts.AnswerFileDialog([&](headless::CHeadlessFileDialog& dialog) {
        look();
        dialog.Accept(Path());
    });
    PressButton(kReportButton);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(depths, ElementsAre(1, 1, 1));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(MaintenanceReportTest, TimeIsThatBeforeTheDialog) {
    Start(Device(simulator::kKrx8));
    desktop->prompts.AnswerFileDialog([&](headless::CHeadlessFileDialog& dialog) {
        desktop->now = {"21.11.2026", "00:01"};
        dialog.Accept(Path());
    });
    PressButton(kReportButton);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_THAT(Content(Path()), HasSubstr("\r\nDATE: 20.11.2026\tTIME: 14:05\r\n"));
}

TEST_F(MaintenanceReportTest, ReportIsWholeWhenTheUserIsTold) {
    Start(Device(simulator::kKrx8));
    std::string content;
    messageService->whileOpen = [&] { content = Content(Path()); };
    Report(Path());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_TRUE(content.ends_with("SRAM SIZE (MB) : 2\r\n")) << content;
}

TEST_F(MaintenanceReportTest, NextReportKeepsNothingOfTheLast) {
    Start(Device(simulator::kKrx10));
    const auto wrappers = interception.LiveWrappers();
    Report(Path());
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
    ConnectDevice(Device(simulator::kKrx20));
    Report(Path());
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
    EXPECT_EQ(TakeMessages().size(), 2u);
    EXPECT_THAT(Content(Path()), HasSubstr("KRX-20 MAINTENANCE INFO\r\n"));
    EXPECT_THAT(Content(Path()), Not(HasSubstr("DRIVER")));
}

}
