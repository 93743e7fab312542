// What the report asks the device for itself, and what it makes of the answers.

#include "contract/device/Krx20SwInfo.h"
#include "contract/device/SoftwareInfo.h"
#include "tests/panel/info/MaintenanceReportFixture.h"

#include <vector>

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using simulator::SoftwareVersions;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class MaintenanceReportVersionsTest : public MaintenanceReportFixture {
protected:
    /// The report on such a device.
    std::string ReportOn(const simulator::DeviceDescription& description) {
        Start(description);
        Report(Path());
        EXPECT_THAT(TakeMessages(), ElementsAre(Saved(Path())));
        return Content(Path());
    }
};

TEST_F(MaintenanceReportVersionsTest, Krx8IsAskedForItsSecuritySoftwareAlone) {
    ReportOn(Device(simulator::kKrx8c));
    EXPECT_THAT(TakeCalls(),
                ElementsAre("ProgrammingDeviceControl.GetSoftwareInfo",
                            "SoftwareInfo.GetSecuritySwVersion", "Context.QueryMessageService",
                            "MessageService.ShowMessage"));
}

TEST_F(MaintenanceReportVersionsTest, Krx10IsAskedInOrder) {
    ReportOn(Device(simulator::kKrx10));
    EXPECT_THAT(
        TakeCalls(),
        ElementsAre(
            "ProgrammingDeviceControl.GetSoftwareInfo", "SoftwareInfo.GetFpgaDriverVersion",
            "SoftwareInfo.GetMmcrDriverVersion", "SoftwareInfo.GetUsbDeviceFunctionDriverVersion",
            "SoftwareInfo.GetUsbHostControllerDriverVersion", "SoftwareInfo.GetMmcrDriverVersion",
            "Context.QueryMessageService", "MessageService.ShowMessage"));
}

/// A version that only some models are asked for.
struct VersionCase {
    const char* name;
    std::int32_t type;
    std::string SoftwareVersions::*version;
    std::vector<std::string> labels; ///< of the lines that show it
};

void PrintTo(const VersionCase& value, std::ostream* out) { *out << value.name; }

class EachVersionTest : public MaintenanceReportVersionsTest,
                        public testing::WithParamInterface<VersionCase> {
protected:
    std::string ReportWith(const std::string& version) {
        simulator::DeviceDescription description = Device(GetParam().type);
        description.software.*GetParam().version = version;
        return ReportOn(description);
    }
    void ExpectShown(const std::string& report, const std::string& version) {
        for (const std::string& label : GetParam().labels) {
            EXPECT_THAT(report, HasSubstr("\r\n" + label + " : " + version + "\r\n"));
        }
    }
};

TEST_P(EachVersionTest, VersionOf81BytesLosesItsLast) {
    ExpectShown(ReportWith(std::string(80, 'v') + "w"), std::string(80, 'v'));
}

TEST_P(EachVersionTest, CharacterThatDoesNotFitWholeIsLeftOut) {
    ExpectShown(ReportWith(std::string(79, 'v') + "\xC3\xA9"), std::string(79, 'v'));
}

TEST_P(EachVersionTest, VersionBeyondAsciiIsShownAsItIs) {
    ExpectShown(ReportWith("1.0 \xC3\xA9\xE2\x82\xAC"), "1.0 \xC3\xA9\xE2\x82\xAC");
}

TEST_P(EachVersionTest, EmptyVersionTakesNoLineAndLeavesTheOthers) {
    std::string expected = ReportWith("marked");
    for (const std::string& label : GetParam().labels) {
        const std::string line = label + " : marked\r\n";
        ASSERT_THAT(expected, HasSubstr(line));
        expected.erase(expected.find(line), line.size());
    }
    simulator::DeviceDescription description = Device(GetParam().type);
    (description.software.*GetParam().version).clear();
    ConnectDevice(description);
    Report(Path());
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(Content(Path()), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Versions, EachVersionTest,
    testing::Values(
        VersionCase{"Security", 1, &SoftwareVersions::security, {"SECURITY SW VER"}},
        VersionCase{"FpgaDriver", 3, &SoftwareVersions::fpgaDriver, {"FPGA DRIVER VER"}},
        VersionCase{"MmcrDriver",
                    3,
                    &SoftwareVersions::mmcrDriver,
                    {"MMCR DRIVER VER", "ZTWCDC DRIVER VER"}},
        VersionCase{"UsbDeviceFunctionDriver",
                    3,
                    &SoftwareVersions::usbDeviceFunctionDriver,
                    {"USB DF DRIVER VER"}},
        VersionCase{"UsbHostControllerDriver",
                    3,
                    &SoftwareVersions::usbHostControllerDriver,
                    {"USB HOST DRIVER VER"}},
        VersionCase{"ServiceFpga", 4, &SoftwareVersions::serviceFpga, {"SERVICE FPGA VER"}},
        VersionCase{"BootLoader", 5, &SoftwareVersions::bootLoader, {"BOOT LOADER VER"}}),
    [](const auto& tested) { return tested.param.name; });

class CTypeInformation final : public contract::ITypeInformation {};

/// Software of a KRX-20 that notes how it is asked for type information.
class CAskedSoftware final : public contract::ISoftwareInfo,
                             public contract::IKrx20SwInfo,
                             public std::enable_shared_from_this<CAskedSoftware> {
public:
    Status GetBootSwVersion(std::string&) override { return contract::kSuccess; }
    Status GetApplicationSwVersion(std::string&) override { return contract::kSuccess; }
    Status GetFpgaCodeVersion(std::string&) override { return contract::kSuccess; }
    Status GetSecuritySwVersion(std::string&) override { return contract::kSuccess; }
    Status GetFpgaDriverVersion(std::string&) override { return contract::kSuccess; }
    Status GetMmcrDriverVersion(std::string&) override { return contract::kSuccess; }
    Status GetUsbDeviceFunctionDriverVersion(std::string&) override { return contract::kSuccess; }
    Status GetUsbHostControllerDriverVersion(std::string&) override { return contract::kSuccess; }
    Status QueryKrx20SwInfo(std::shared_ptr<contract::IKrx20SwInfo>& info) override {
        info = shared_from_this();
        return contract::kSuccess;
    }

    Status GetTypeInfo(std::uint32_t index, std::uint32_t locale,
                       std::shared_ptr<contract::ITypeInformation>& information) override {
        asked.emplace_back(index, locale);
        information = std::make_shared<CTypeInformation>();
        return contract::kSuccess;
    }
    Status GetBootLoaderVersion(std::string&) override { return contract::kSuccess; }
    Status GetServiceFpgaVersion(std::string&) override { return contract::kSuccess; }

    std::vector<std::pair<std::uint32_t, std::uint32_t>> asked;
};

TEST_F(MaintenanceReportVersionsTest, TypeInformationOneOfTheUsersLocaleIsAskedFor) {
    const auto software = std::make_shared<CAskedSoftware>();
    device->software = software;
    const std::string report = ReportOn(Device(simulator::kKrx20));
    EXPECT_THAT(software->asked, ElementsAre(std::pair(1u, 0x0400u)));
    EXPECT_THAT(report, Not(HasSubstr("SERVICE FPGA")));
    EXPECT_THAT(report, Not(HasSubstr("BOOT LOADER")));
}

}
