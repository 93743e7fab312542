#include "tests/panel/info/MaintenanceReportFixture.h"
#include "tests/support/RoomFixture.h"

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

class MaintenanceReportFailureTest : public MaintenanceReportFixture {};

TEST_F(MaintenanceReportFailureTest, FileThatCannotBeOpenedIsReported) {
    Start(Device(simulator::kKrx8));
    Report(Path("missing/report.txt"));
    EXPECT_THAT(TakeMessages(), ElementsAre(Shown{"Error in printing report to file.",
                                                  kReportCaption, 0x10, 0, ""}));
}

TEST_F(MaintenanceReportFailureTest, DescriptionLeftMeanwhileIsTakenIntoTheReport) {
    Start(Device(simulator::kKrx8));
    ReportWithErrorInfo(Path("missing/report.txt"), "the share is gone");
    EXPECT_THAT(TakeMessages(), ElementsAre(Shown{"Error in printing report to file.",
                                                  kReportCaption, 0x10, 0, "the share is gone"}));
}

TEST_F(MaintenanceReportFailureTest, WriteErrorsAreIgnored) {
    ASSERT_TRUE(std::filesystem::exists("/dev/full"))
        << "this system has no device that is always full";
    std::filesystem::create_symlink("/dev/full", Path("full.txt"));
    Start(Device(simulator::kKrx8));
    Report(Path("full.txt"));
    EXPECT_THAT(TakeMessages(), ElementsAre(Saved(Path("full.txt"))));
}

struct FailureCase {
    std::int32_t type;
    const char* operation;
    std::size_t number; ///< of the calls of that operation, the connecting included
    const char* text;
    bool deliversObject = false;
};

void PrintTo(const FailureCase& value, std::ostream* out) { *out << value.operation; }

class FailingReportCallTest : public MaintenanceReportFailureTest,
                              public testing::WithParamInterface<FailureCase> {};

TEST_P(FailingReportCallTest, FailureIsShownAndNoFileAskedFor) {
    Start(Device(GetParam().type));
    const auto wrappers = interception.LiveWrappers();
    faults->Fail({GetParam().number, GetParam().operation},
                 {Status::FromBits(0x8007001F), "no answer"});
    PressButton(kReportButton);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport(GetParam().text, kReportCaption,
                                        Status::FromBits(0x8007001F), "no answer")));
    EXPECT_THAT(desktop->prompts.FileDialogs(), IsEmpty());
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

INSTANTIATE_TEST_SUITE_P(
    Calls, FailingReportCallTest,
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

TEST_F(MaintenanceReportFailureTest, NullObjectsCountAsFailures) {
    Start(Device(simulator::kKrx20));
    faults->DeliverNull({2, "ProgrammingDeviceControl.GetSoftwareInfo"});
    PressButton(kReportButton);
    faults->DeliverNull({1, "SoftwareInfo.QueryKrx20SwInfo"});
    PressButton(kReportButton);
    faults->DeliverNull({1, "Krx20SwInfo.GetTypeInfo"});
    PressButton(kReportButton);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Software Info request failed", kReportCaption,
                                        Status::FromBits(0x80004003)),
                            ErrorReport("IKrx20SwInfo instance query failed", kReportCaption,
                                        Status::FromBits(0x80004002)),
                            ErrorReport("Type Info retrieving failed", kReportCaption,
                                        Status::FromBits(0x80004003))));
}

class UnconnectedReportTest : public RoomFixture {};

TEST_F(UnconnectedReportTest, ReportWithoutControlFailsAtItsFirstCall) {
    rooms->report.WriteMaintenanceReport();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Software Info request failed", kReportCaption,
                                        Status::FromBits(0x80004003))));
    EXPECT_THAT(desktop->prompts.FileDialogs(), IsEmpty());
}

}
