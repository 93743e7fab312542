#include "contract/device/ExternalStorages.h"
#include "contract/device/FileInfo.h"
#include "contract/device/FileListing.h"
#include "contract/device/FreeResources.h"
#include "contract/device/HardwareInfo.h"
#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/Krx10Control.h"
#include "contract/device/Krx20SwInfo.h"
#include "contract/device/SelfTestResults.h"
#include "contract/device/SoftwareInfo.h"
#include "tests/simulator/HostFixture.h"

namespace simulator {
namespace {

using contract::IProgrammingDeviceControl;

/// What a panel reads of a device, through the service that a host offers.
class DeviceServiceTest : public HostFixture {
protected:
    std::shared_ptr<contract::IFileListing> Listing() {
        return ObjectOf(*Control(), &IProgrammingDeviceControl::GetFileListing);
    }
    std::shared_ptr<contract::IKrx10CommunicationConfiguration2> Configuration() {
        const auto control =
            ObjectOf(*Subsystem(), &contract::IProgrammingDeviceSubsystem::GetKrx10Control);
        const auto first =
            ObjectOf(*control, &contract::IKrx10Control::GetCommunicationConfiguration);
        return ObjectOf(
            *first, &contract::IKrx10CommunicationConfiguration::QueryCommunicationConfiguration2);
    }
    static DeviceDescription DeviceWithFiles(std::vector<StoredFile> files) {
        DeviceDescription description;
        description.files = std::move(files);
        return description;
    }
};

TEST_F(DeviceServiceTest, HardwareInfoTellsTheDescription) {
    DeviceDescription description;
    description.type = 9;
    description.hardwareVersion = "B2";
    description.totalRamBytes = 4294967295;
    description.totalFlashBytes = 16;
    description.serialNumber = -1;
    InsertDevice(description);
    using contract::IHardwareInfo;
    const auto info = ObjectOf(*Control(), &IProgrammingDeviceControl::GetHardwareInfo);
    EXPECT_EQ(ValueOf(*info, &IHardwareInfo::GetDeviceType), 9);
    EXPECT_EQ(ValueOf(*info, &IHardwareInfo::GetHardwareVersion), "B2");
    EXPECT_EQ(ValueOf(*info, &IHardwareInfo::GetTotalRamSize), 4294967295u);
    EXPECT_EQ(ValueOf(*info, &IHardwareInfo::GetTotalFlashSize), 16u);
    EXPECT_EQ(ValueOf(*info, &IHardwareInfo::GetSerialNumber), -1);
}

TEST_F(DeviceServiceTest, SoftwareInfoTellsTheDescription) {
    DeviceDescription description;
    description.software = {"boot", "application", "fpga", "security", "fpga driver",
                            "mmcr", "function",    "host", "loader",   "service"};
    InsertDevice(description);
    using contract::ISoftwareInfo;
    const auto info = ObjectOf(*Control(), &IProgrammingDeviceControl::GetSoftwareInfo);
    EXPECT_EQ(ValueOf(*info, &ISoftwareInfo::GetBootSwVersion), "boot");
    EXPECT_EQ(ValueOf(*info, &ISoftwareInfo::GetApplicationSwVersion), "application");
    EXPECT_EQ(ValueOf(*info, &ISoftwareInfo::GetFpgaCodeVersion), "fpga");
    EXPECT_EQ(ValueOf(*info, &ISoftwareInfo::GetSecuritySwVersion), "security");
    EXPECT_EQ(ValueOf(*info, &ISoftwareInfo::GetFpgaDriverVersion), "fpga driver");
    EXPECT_EQ(ValueOf(*info, &ISoftwareInfo::GetMmcrDriverVersion), "mmcr");
    EXPECT_EQ(ValueOf(*info, &ISoftwareInfo::GetUsbDeviceFunctionDriverVersion), "function");
    EXPECT_EQ(ValueOf(*info, &ISoftwareInfo::GetUsbHostControllerDriverVersion), "host");
}

TEST_F(DeviceServiceTest, Krx20VersionsComeWithTypeInformation) {
    auto description = DeviceOfType(kKrx21);
    description.software.bootLoader = "1.7.4";
    description.software.serviceFpga = "1.02";
    InsertDevice(description);
    const auto info = ObjectOf(*Control(), &IProgrammingDeviceControl::GetSoftwareInfo);
    const auto added = ObjectOf(*info, &contract::ISoftwareInfo::QueryKrx20SwInfo);
    EXPECT_EQ(ValueOf(*added, &contract::IKrx20SwInfo::GetBootLoaderVersion), "1.7.4");
    EXPECT_EQ(ValueOf(*added, &contract::IKrx20SwInfo::GetServiceFpgaVersion), "1.02");
    std::shared_ptr<contract::ITypeInformation> type;
    EXPECT_EQ(added->GetTypeInfo(1, contract::kUserDefaultLocale, type), contract::kSuccess);
    EXPECT_NE(type, nullptr);
}

TEST_F(DeviceServiceTest, Krx20VersionsAreNotOnOtherModels) {
    for (const auto type : {kKrx8, kKrx8c, kKrx10, 9}) {
        InsertDevice(DeviceOfType(type));
        const auto info = ObjectOf(*Control(), &IProgrammingDeviceControl::GetSoftwareInfo);
        std::shared_ptr<contract::IKrx20SwInfo> added;
        ExpectFailure(info->QueryKrx20SwInfo(added), 0x80004002,
                      "This device has no KRX-20 software versions");
        EXPECT_EQ(added, nullptr);
    }
}

TEST_F(DeviceServiceTest, FreeResourcesSubtractTheStoredFiles) {
    auto description = DeviceWithFiles(
        {{"a", 22, 1, "", 100, kInRam, 0, ""}, {"b", 22, 2, "", 2000, kInFlash, 0, ""}});
    description.totalRamBytes = 1024;
    description.totalFlashBytes = 4096;
    InsertDevice(description);
    const auto resources = ObjectOf(*Control(), &IProgrammingDeviceControl::GetFreeResources);
    EXPECT_EQ(ValueOf(*resources, &contract::IFreeResources::GetFreeRamSize), 924u);
    EXPECT_EQ(ValueOf(*resources, &contract::IFreeResources::GetFreeFlashSize), 2096u);
}

TEST_F(DeviceServiceTest, SelfTestsAnswerByTheirCode) {
    DeviceDescription description;
    description.selfTests = {{contract::SelfTest::FpgaCode, 0}, {contract::SelfTest::Fpga, 796}};
    InsertDevice(description);
    const auto results = ObjectOf(*Control(), &IProgrammingDeviceControl::GetSelfTestResults);
    const auto codeOf = [&](std::int32_t test) {
        std::int32_t code = -1;
        EXPECT_EQ(results->GetResult(static_cast<contract::SelfTest>(test), code),
                  contract::kSuccess);
        return code;
    };
    EXPECT_EQ(codeOf(1), 0);
    for (std::int32_t test = 2; test <= 20; ++test) {
        EXPECT_EQ(codeOf(test), 787) << test;
    }
    EXPECT_EQ(codeOf(21), 796);
}

TEST_F(DeviceServiceTest, SelfTestOutsideTheListFails) {
    InsertDevice({});
    const auto results = ObjectOf(*Control(), &IProgrammingDeviceControl::GetSelfTestResults);
    std::int32_t code = 55;
    ExpectFailure(results->GetResult(static_cast<contract::SelfTest>(0), code), 0x80070057,
                  "There is no self-test 0");
    ExpectFailure(results->GetResult(static_cast<contract::SelfTest>(22), code), 0x80070057,
                  "There is no self-test 22");
    EXPECT_EQ(code, 55);
}

TEST_F(DeviceServiceTest, ListingTellsEachFileInOrder) {
    InsertDevice(DeviceWithFiles({{"first.fia", 19, 70000, "1.0", 64, 1, 3, ""},
                                  {"", -7, -1, "", 2147483647, 99, 4294967295, ""}}));
    const auto listing = Listing();
    ASSERT_EQ(ValueOf(*listing, &contract::IFileListing::GetFileCount), 2);
    std::shared_ptr<contract::IFileInfo> info;
    ASSERT_EQ(listing->GetFileInfo(1, info), contract::kSuccess);
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetName), "first.fia");
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetType), 19);
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetId), 70000);
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetVersion), "1.0");
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetSize), 64);
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetLocation), 1);
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetGeneration), 3u);
    ASSERT_EQ(listing->GetFileInfo(2, info), contract::kSuccess);
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetName), "");
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetType), -7);
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetLocation), 99);
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetGeneration), 4294967295u);
}

TEST_F(DeviceServiceTest, ListingRefusesIndexesOutsideItsCount) {
    InsertDevice(DeviceWithFiles({{"a", 22, 1, "", 1, 2, 0, ""}}));
    const auto listing = Listing();
    std::shared_ptr<contract::IFileInfo> info;
    ExpectFailure(listing->GetFileInfo(0, info), 0x80070057,
                  "There is no file 0 in a listing of 1");
    ExpectFailure(listing->GetFileInfo(2, info), 0x80070057,
                  "There is no file 2 in a listing of 1");
    EXPECT_EQ(info, nullptr);
}

TEST_F(DeviceServiceTest, FileInfoOutlivesListingAndDevice) {
    InsertDevice(DeviceWithFiles({{"a.fia", 22, 1, "", 1, 2, 0, ""}}));
    std::shared_ptr<contract::IFileInfo> info;
    ASSERT_EQ(Listing()->GetFileInfo(1, info), contract::kSuccess);
    m_host.RemoveDevice();
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetName), "a.fia");
}

TEST_F(DeviceServiceTest, MillionFilesAreListed) {
    InsertDevice(DeviceWithFiles(
        std::vector<StoredFile>(1000000, {"a.fia", 22, 1, "1.0", 3, kInFlash, 0, ""})));
    const auto listing = Listing();
    EXPECT_EQ(ValueOf(*listing, &contract::IFileListing::GetFileCount), 1000000);
    std::shared_ptr<contract::IFileInfo> info;
    EXPECT_EQ(listing->GetFileInfo(1000000, info), contract::kSuccess);
    EXPECT_EQ(ValueOf(*info, &contract::IFileInfo::GetName), "a.fia");
}

TEST_F(DeviceServiceTest, ExternalStoragesCountThePcCard) {
    DeviceDescription description;
    InsertDevice(description);
    const auto count = [&] {
        return ValueOf(*ObjectOf(*Control(), &IProgrammingDeviceControl::GetExternalStorages),
                       &contract::IExternalStorages::GetCount);
    };
    EXPECT_EQ(count(), 0);
    description.pcCard = PcCard{1024};
    InsertDevice(description);
    EXPECT_EQ(count(), 1);
}

TEST_F(DeviceServiceTest, ConfigurationTellsTheNetworkSettings) {
    DeviceDescription description;
    description.network = {"192.0.2.20", 1, 2, 3, true, "bench 3", "00-00-5E-00-53-20"};
    InsertDevice(description);
    using IConfiguration = contract::IKrx10CommunicationConfiguration2;
    const auto configuration = Configuration();
    EXPECT_EQ(ValueOf(*configuration, &IConfiguration::GetIpAddress), "192.0.2.20");
    EXPECT_EQ(ValueOf(*configuration, &IConfiguration::GetIpAddressValue), 1u);
    EXPECT_EQ(ValueOf(*configuration, &IConfiguration::GetSubnetMask), 2u);
    EXPECT_EQ(ValueOf(*configuration, &IConfiguration::GetGateway), 3u);
    EXPECT_TRUE(ValueOf(*configuration, &IConfiguration::GetUseDhcp));
    EXPECT_EQ(ValueOf(*configuration, &IConfiguration::GetDescription), "bench 3");
    EXPECT_EQ(ValueOf(*configuration, &IConfiguration::GetMacAddress), "00-00-5E-00-53-20");
}

TEST_F(DeviceServiceTest, ConfigurationChangesStayInTheCopy) {
    InsertDevice({});
    using IConfiguration = contract::IKrx10CommunicationConfiguration2;
    const auto copy = Configuration();
    EXPECT_EQ(copy->SetIpAddress(7), contract::kSuccess);
    EXPECT_EQ(copy->SetDhcp(true), contract::kSuccess);
    EXPECT_EQ(copy->SetSubnetMask(8), contract::kSuccess);
    EXPECT_EQ(copy->SetGateway(9), contract::kSuccess);
    EXPECT_EQ(copy->SetDescription("new"), contract::kSuccess);
    EXPECT_EQ(ValueOf(*copy, &IConfiguration::GetIpAddressValue), 7u);
    EXPECT_TRUE(ValueOf(*copy, &IConfiguration::GetUseDhcp));
    EXPECT_EQ(ValueOf(*copy, &IConfiguration::GetSubnetMask), 8u);
    EXPECT_EQ(ValueOf(*copy, &IConfiguration::GetGateway), 9u);
    EXPECT_EQ(ValueOf(*copy, &IConfiguration::GetDescription), "new");
    EXPECT_EQ(ValueOf(*Configuration(), &IConfiguration::GetDescription), "");
}

TEST_F(DeviceServiceTest, NetworkControlIsThereOnNetworkedModelsOnly) {
    for (const auto type : {kKrx10, kKrx20, kKrx21}) {
        InsertDevice(DeviceOfType(type));
        ObjectOf(*Subsystem(), &contract::IProgrammingDeviceSubsystem::GetKrx10Control);
    }
    for (const auto type : {kKrx8, kKrx8c, 6}) {
        InsertDevice(DeviceOfType(type));
        std::shared_ptr<contract::IKrx10Control> control;
        ExpectFailure(Subsystem()->GetKrx10Control(control), 0x80004002,
                      "This device has no network control");
    }
}

TEST_F(DeviceServiceTest, RequestModeAnswersBeforeItReturns) {
    InsertDevice({})->EnterMode(kServiceMode);
    HearDevice(m_log);
    EXPECT_EQ(Control()->RequestMode(contract::ModeRequest::Report), contract::kSuccess);
    EXPECT_EQ(m_log->events, Events{"mode 2"});
}

}
}
