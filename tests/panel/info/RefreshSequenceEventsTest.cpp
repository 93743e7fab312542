#include "tests/panel/info/RefreshFixture.h"
#include "tests/support/DeviceDouble.h"

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class RefreshSequenceEventsTest : public RefreshFixture {};

// Cursor and controls

TEST_F(RefreshSequenceEventsTest, WaitCursorShowsThroughoutTheRefresh) {
    std::vector<bool> isBusy;
    const auto look = [&] { isBusy.push_back(desktop->cursorDepth > 0); };
    messageService->whileOpen = look;
    Inside("HardwareInfo.GetDeviceType", look);
    Inside("SelfTestResults.GetResult", look, 21);
    Inside("ProgrammingDeviceControl.RequestMode", look);
    Inside("HardwareInfo.GetTotalFlashSize", look);
    Inside("FreeResources.GetFreeRamSize", look);
    ConnectDevice(DeviceInMode(kKrx20, kServiceMode));
    EXPECT_THAT(isBusy, ElementsAre(false, true, true, true, true, true));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(RefreshSequenceEventsTest, WaitCursorShowsThroughListingAndOffer) {
    std::vector<bool> isBusy;
    const auto look = [&] { isBusy.push_back(desktop->cursorDepth > 0); };
    Inside("FileInfo.GetGeneration", look);
    desktop->prompts.AnswerDialog([&](headless::CHeadlessView&) { look(); });
    DeviceDescription device = HealthyDevice(kKrx20);
    device.files = {File("alpha.fia", 19, 1)};
    ConnectDevice(device);
    EXPECT_THAT(isBusy, ElementsAre(true, true));
}

TEST_F(RefreshSequenceEventsTest, FirstRowIsSelectedWhateverWas) {
    ConnectDevice(kKrx20);
    View().SelectRow(kFileList, 0, false);
    View().SelectRow(kFileList, 2, true);
    View().SetSelectionMark(kFileList, 2);
    RaiseState(7);
    EXPECT_THAT(View().GetSelectedRows(kFileList), ElementsAre(0));
    EXPECT_EQ(View().GetSelectionMark(kFileList), 0);
}

TEST_F(RefreshSequenceEventsTest, ControlsAreEnabledLast) {
    bool wasEnabled = true;
    Inside(
        "FileInfo.GetGeneration", [&] { wasEnabled = IsEnabled(kUpdateButton); }, 3);
    ConnectDevice(kKrx20);
    EXPECT_FALSE(wasEnabled);
    for (const ControlId id : {224, 226, 227, 228, 229, 244, 245, 246}) {
        EXPECT_TRUE(IsEnabled(id)) << id;
    }
    EXPECT_FALSE(IsEnabled(kDetailsButton));
}

TEST_F(RefreshSequenceEventsTest, FailureOfEverythingStillEnablesTheControls) {
    ForgetWhatWasSeen();
    for (const char* operation :
         {"ProgrammingDeviceControl.GetSelfTestResults", "ProgrammingDeviceControl.RequestMode",
          "ProgrammingDeviceControl.GetSoftwareInfo"}) {
        faults->Fail({1, operation});
    }
    ConnectDevice(kKrx20);
    std::vector<std::string> texts;
    for (const Shown& shown : TakeMessages()) {
        texts.push_back(shown.text.substr(0, 35));
    }
    EXPECT_THAT(texts,
                ElementsAre("Cannot get self-test results", "Programming Device Mode query faile",
                            "Software Info request failed", "The Programming Device is not in No"));
    EXPECT_THAT(Fields(), ElementsAre("", "", "0", "0", "0", "0", "", "", "", ""));
    EXPECT_TRUE(IsEnabled(kUpdateButton));
    EXPECT_EQ(desktop->cursorDepth, 0);
}

// Events that arrive meanwhile

TEST_F(RefreshSequenceEventsTest, ReadyStateWhileTestsAreReadStartsNoRefresh) {
    ForgetWhatWasSeen();
    Inside("ProgrammingDeviceControl.GetSelfTestResults", [this] { RaiseState(7); });
    ConnectDevice(kKrx20);
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls,
                                 {"ProgrammingDeviceControl.GetSelfTestResults"},
                                 kTypeCalls,
                                 Repeat(21, {"SelfTestResults.GetResult"}),
                                 kModeCalls,
                                 kInformationCalls,
                                 kFreeMemoryCalls,
                                 kNetworkCalls,
                                 kListingCalls}));
    EXPECT_TRUE(State().refreshAllowed);
}

TEST_F(RefreshSequenceEventsTest, ReadyStateInsideARefreshRunsOneInside) {
    ForgetWhatWasSeen();
    Inside("SoftwareInfo.GetBootSwVersion", [this] { RaiseState(7); });
    ConnectDevice(kKrx20);
    const Calls inner = Join({kTypeCalls, kSelfTestCalls, kInformationCalls, kFreeMemoryCalls,
                              kNetworkCalls, kListingCalls});
    const Calls before(kInformationCalls.begin(), kInformationCalls.begin() + 3);
    const Calls after(kInformationCalls.begin() + 3, kInformationCalls.end());
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls, kSelfTestCalls, kModeCalls, before, inner, after,
                                 kFreeMemoryCalls, kNetworkCalls, kListingCalls}));
    EXPECT_EQ(RowCount(), 3);
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(RefreshSequenceEventsTest, RefreshInsideTheListingStopsTheOuterOne) {
    Inside(
        "FileInfo.GetSize", [this] { RaiseState(7); }, 2);
    ConnectDevice(kKrx20);
    EXPECT_EQ(RowCount(), 3);
    EXPECT_THAT(Row(2), ElementsAre("version.fia", "MCUSW", "3", "2.5.13", "1003", "Flash", ""));
    EXPECT_EQ(faults->Calls("FileListing.GetFileInfo"), 5u);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

TEST_F(RefreshSequenceEventsTest, GoneStateInsideARefreshLetsItRunOn) {
    Inside("FreeResources.GetFreeRamSize", [this] { RaiseState(5); });
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(), ElementsAre(kNotNormalWarning));
    EXPECT_EQ(State().deviceMode, DeviceMode::NotYetKnown);
    EXPECT_EQ(Field(kIpAddressField), "192.168.0.1");
    EXPECT_EQ(RowCount(), 0);
    EXPECT_TRUE(IsEnabled(kUpdateButton));
}

TEST_F(RefreshSequenceEventsTest, DeviceExchangedInsideIsReadByItsOwnType) {
    Inside("ProgrammingDeviceControl.GetSoftwareInfo", [this] { ConnectDevice(6); });
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(WarningBox("Wrong prommer type detected.", "Prommer Maintenance")));
    EXPECT_EQ(Field(kInfoGroup), "KRX-unknown");
    EXPECT_EQ(Field(kSerialNumberField), "4711");
    EXPECT_EQ(Field(kIpAddressField), "");
    EXPECT_EQ(faults->Calls("ProgrammingDeviceSubsystem.GetKrx10Control"), 0u);
}

TEST_F(RefreshSequenceEventsTest, RefreshWithoutViewStillReadsEverything) {
    ForgetWhatWasSeen();
    panel->DestroyView();
    ConnectDevice(kKrx20);
    EXPECT_EQ(TakeCalls(), Join({kTypeCalls, kSelfTestCalls, kModeCalls, kInformationCalls,
                                 kFreeMemoryCalls, kNetworkCalls, kListingCalls}));
    EXPECT_EQ(State().network.description, "bench 3");
    EXPECT_EQ(State().installedPackageVersion, "002.005.013");
}

// The refresh by itself

class RefreshByItselfTest : public RoomFixture {};

TEST_F(RefreshByItselfTest, NothingHappensWhileRefreshingIsNotAllowed) {
    Insert(HealthyDevice(kKrx20));
    View().SetText(kHardwareField, "kept");
    View().InsertRow(kFileList, 0, "kept");
    State().refreshAllowed = false;
    State().installedPackageVersion = "001";
    rooms->refresh.RefreshDeviceInfo();
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_EQ(Field(kHardwareField), "kept");
    EXPECT_EQ(RowCount(), 1);
    EXPECT_EQ(State().installedPackageVersion, "001");
    EXPECT_FALSE(IsEnabled(kUpdateButton));
    EXPECT_EQ(desktop->highestCursorDepth, 0);
    EXPECT_FALSE(State().refreshAllowed);
}

TEST_F(RefreshByItselfTest, UnknownTypeIsReadBySerialNumberWithoutNetwork) {
    Insert(HealthyDevice(6));
    State().deviceType = static_cast<DeviceType>(6);
    rooms->refresh.RefreshDeviceInfo();
    EXPECT_EQ(TakeCalls(), Join({kSelfTestCalls, kModeCalls, kInformationCalls, kFreeMemoryCalls,
                                 kSerialNumberCalls, kListingCalls}));
    EXPECT_EQ(Field(kSerialNumberField), "4711");
    EXPECT_EQ(Field(kInfoGroup), "KRX-unknown");
    EXPECT_TRUE(IsEnabled(kNetworkButton));
}

TEST_F(RefreshByItselfTest, WithoutControlEveryPartReportsItsFirstStep) {
    rooms->refresh.RefreshDeviceInfo();
    const contract::Status status = contract::Status::FromBits(0x80004003);
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(
            ErrorReport("Cannot get self-test results", "Prommer Maintenance", status),
            ErrorReport("Programming Device Mode query failed", "Prommer Maintenance", status),
            ErrorReport("Software Info request failed", "Prommer Maintenance", status),
            kNotNormalWarning,
            ErrorReport("A fatal error has occured, please restart Halcyon and try again.",
                        "Prommer Maintenance", status)));
    EXPECT_TRUE(IsEnabled(kUpdateButton));
    EXPECT_TRUE(State().refreshAllowed);
    EXPECT_EQ(desktop->cursorDepth, 0);
}

TEST_F(RefreshByItselfTest, ModeThatIsNeverAnsweredCountsAsNotNormal) {
    const auto device = std::make_shared<CDeviceDouble>();
    ConnectTo(device);
    rooms->refresh.RefreshDeviceInfo();
    EXPECT_THAT(device->modeRequests, ElementsAre(0));
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Cannot get self-test results", "Prommer Maintenance",
                                        contract::kUnspecifiedFailure),
                            ErrorReport("Software Info request failed", "Prommer Maintenance",
                                        contract::kUnspecifiedFailure),
                            kNotNormalWarning));
    EXPECT_EQ(RowCount(), 0);
}

TEST_F(RefreshByItselfTest, WarningCarriesNoOlderDescription) {
    contract::SetErrorInfo("left by somebody");
    Insert(HealthyDevice(kKrx20));
    State().deviceMode = DeviceMode::Service;
    faults->RunAfter({1, "Krx10CommunicationConfiguration2.GetMacAddress"},
                     [] { contract::SetErrorInfo("left by a success"); });
    rooms->refresh.RefreshDeviceInfo();
    EXPECT_THAT(TakeMessages(), ElementsAre(kNotNormalWarning));
}

}
