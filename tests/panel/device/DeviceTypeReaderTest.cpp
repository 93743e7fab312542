#include "panel/device/DeviceTypeReader.h"

#include "contract/ErrorInfo.h"
#include "tests/support/PanelFixture.h"

#include <ostream>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using contract::Status;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kCaption = "Prommer Maintenance";
constexpr Status kBusy = Status::FromBits(0x800700AA);
constexpr Status kPointerMissing = Status::FromBits(0x80004003);

class DeviceTypeReaderTest : public PanelFixture {
protected:
    void SetUp() override {
        StartPanel();
        TakeCalls();
    }
    int Type() { return static_cast<int>(State().deviceType); }
    void ExpectNoRefresh() {
        EXPECT_EQ(desktop->highestCursorDepth, 0);
        EXPECT_THAT(Log(), IsEmpty());
        EXPECT_EQ(Field(212), "");
        EXPECT_FALSE(IsEnabled(226));
    }
};

struct KnownType {
    std::int32_t type;
    const char* title;
    bool isNetworkEnabled;

    friend std::ostream& operator<<(std::ostream& out, const KnownType& known) {
        return out << known.type;
    }
};

class KnownTypeTest : public DeviceTypeReaderTest, public testing::WithParamInterface<KnownType> {};

TEST_P(KnownTypeTest, KnownTypeIsKeptAndRefreshed) {
    ConnectDevice(GetParam().type);
    EXPECT_EQ(Type(), GetParam().type);
    EXPECT_EQ(Field(201), GetParam().title);
    EXPECT_EQ(RowCount(), 3);
    for (const ControlId id : {224, 226, 227, 228, 229}) {
        EXPECT_TRUE(IsEnabled(id)) << id;
    }
    for (const ControlId id : {244, 245, 246}) {
        EXPECT_EQ(IsEnabled(id), GetParam().isNetworkEnabled) << id;
    }
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_P(KnownTypeTest, DeviceGoneTakesEverything) {
    ConnectDevice(GetParam().type);
    DisconnectDevice();
    EXPECT_EQ(Field(201), GetParam().title);
    for (const ControlId id : {222, 224, 226, 227, 228, 229, 244, 245, 246}) {
        EXPECT_FALSE(IsEnabled(id)) << id;
    }
}

INSTANTIATE_TEST_SUITE_P(Types, KnownTypeTest,
                         testing::Values(KnownType{1, "KRX-8 Info", false},
                                         KnownType{2, "KRX-8 Info", false},
                                         KnownType{3, "KRX-10 Info", true},
                                         KnownType{4, "KRX-20 Info", true},
                                         KnownType{5, "KRX-21 Info", true}));

TEST_F(DeviceTypeReaderTest, TypeIsReadBeforeAnythingElse) {
    ConnectDevice(kKrx20);
    const auto calls = TakeCalls();
    ASSERT_GE(calls.size(), 3u);
    EXPECT_EQ(calls[0], "ProgrammingDeviceControl.GetHardwareInfo");
    EXPECT_EQ(calls[1], "HardwareInfo.GetDeviceType");
    EXPECT_EQ(calls[2], "ProgrammingDeviceControl.GetSelfTestResults");
}

TEST_F(DeviceTypeReaderTest, TypeIsReadAnewForEachDevice) {
    ConnectDevice(kKrx20);
    DisconnectDevice();
    ConnectDevice(kKrx8);
    EXPECT_EQ(Type(), 1);
    EXPECT_EQ(Field(201), "KRX-8 Info");
    EXPECT_FALSE(IsEnabled(246));
}

class WrongTypeTest : public DeviceTypeReaderTest,
                      public testing::WithParamInterface<std::int32_t> {};

TEST_P(WrongTypeTest, WrongTypeIsKeptAndWarnedOf) {
    ConnectDevice(GetParam());
    EXPECT_EQ(Type(), GetParam());
    EXPECT_THAT(TakeMessages(), ElementsAre(WarningBox("Wrong prommer type detected.", kCaption)));
    EXPECT_THAT(TakeCalls(),
                ElementsAre("ProgrammingDeviceControl.GetHardwareInfo",
                            "HardwareInfo.GetDeviceType", "Context.QueryMessageService",
                            "MessageService.ShowMessage"));
    ExpectNoRefresh();
}

TEST_P(WrongTypeTest, WrongTypeTitlesTheGroupOnlyWhenControlsAreNextSet) {
    ConnectDevice(GetParam());
    EXPECT_EQ(Field(201), "KRX-8 Info");
    RaiseState(5);
    EXPECT_EQ(Field(201), "KRX-unknown");
}

INSTANTIATE_TEST_SUITE_P(Types, WrongTypeTest,
                         testing::Values(0, 6, 7, -1, 2147483647, -2147483647 - 1));

TEST_F(DeviceTypeReaderTest, WrongTypeAfterADeviceLeavesWhatIsShown) {
    ConnectDevice(kKrx20);
    ForgetWhatWasSeen();
    ConnectDevice(6);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(Field(201), "KRX-20 Info");
    EXPECT_EQ(RowCount(), 3);
    EXPECT_TRUE(IsEnabled(226));
}

TEST_F(DeviceTypeReaderTest, UnknownDeviceIsGivenAndTakenEveryControl) {
    ConnectDevice(kKrx8);
    ConnectDevice(6);
    EXPECT_EQ(TakeMessages().size(), 1u);
    ASSERT_TRUE(PressButton(kResetButton));
    EXPECT_EQ(Field(201), "KRX-unknown");
    for (const ControlId id : {224, 226, 227, 228, 229, 244, 245, 246}) {
        EXPECT_TRUE(IsEnabled(id)) << id;
    }
    RaiseState(5);
    EXPECT_EQ(Field(201), "KRX-unknown");
    for (const ControlId id : {222, 224, 226, 227, 228, 229, 244, 245, 246}) {
        EXPECT_FALSE(IsEnabled(id)) << id;
    }
}

TEST_F(DeviceTypeReaderTest, WrongTypeHasNoDescriptionWhateverCameBefore) {
    faults->RunBefore({1, "HardwareInfo.GetDeviceType"},
                      [] { contract::SetErrorInfo("an earlier failure"); });
    ConnectDevice(6);
    EXPECT_THAT(TakeMessages(), ElementsAre(WarningBox("Wrong prommer type detected.", kCaption)));
}

// Failures

TEST_F(DeviceTypeReaderTest, HardwareInfoThatFailsIsReportedAndEndsTheReading) {
    faults->Fail({1, "ProgrammingDeviceControl.GetHardwareInfo"},
                 {.status = kBusy, .description = "The device is busy"});
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Failed to read the Programming Device hardware info",
                                        kCaption, kBusy, "The device is busy")));
    EXPECT_EQ(Type(), 3);
    EXPECT_EQ(faults->Calls("HardwareInfo.GetDeviceType"), 0u);
    ExpectNoRefresh();
}

TEST_F(DeviceTypeReaderTest, HardwareInfoThatIsNullIsReportedAsInvalidPointer) {
    faults->DeliverNull({1, "ProgrammingDeviceControl.GetHardwareInfo"});
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Failed to read the Programming Device hardware info",
                                        kCaption, kPointerMissing, "")));
    EXPECT_EQ(Type(), 3);
    ExpectNoRefresh();
}

TEST_F(DeviceTypeReaderTest, TypeThatFailsIsReportedAndStays) {
    faults->Fail({1, "HardwareInfo.GetDeviceType"},
                 {.status = kBusy, .description = "The device is busy"});
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Failed to read the Programming Device type", kCaption,
                                        kBusy, "The device is busy")));
    EXPECT_EQ(Type(), 3);
    ExpectNoRefresh();
}

TEST_F(DeviceTypeReaderTest, FailureAfterADeviceKeepsItsType) {
    ConnectDevice(kKrx20);
    faults->Clear();
    faults->Fail({1, "HardwareInfo.GetDeviceType"}, {.status = kBusy});
    RaiseState(7);
    EXPECT_EQ(TakeMessages().size(), 1u);
    EXPECT_EQ(Type(), 4);
    EXPECT_TRUE(IsEnabled(226));
}

TEST_F(DeviceTypeReaderTest, FailureWithoutDescriptionShowsNoOlderOne) {
    contract::SetErrorInfo("an earlier failure");
    faults->Fail({1, "ProgrammingDeviceControl.GetHardwareInfo"}, {.status = kBusy});
    ConnectDevice(kKrx20);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Failed to read the Programming Device hardware info",
                                        kCaption, kBusy, "")));
}

TEST_F(DeviceTypeReaderTest, DescriptionOfTheFirstFailureIsNotThatOfTheNext) {
    faults->Fail({1, "ProgrammingDeviceControl.GetHardwareInfo"},
                 {.status = kBusy, .description = "The device is busy"});
    faults->Fail({2, "ProgrammingDeviceControl.GetHardwareInfo"}, {.status = kBusy});
    ConnectDevice(kKrx20);
    RaiseState(7);
    const auto messages = TakeMessages();
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(messages[0].description, "The device is busy");
    EXPECT_EQ(messages[1].description, "");
}

TEST_F(DeviceTypeReaderTest, EveryMessageHasNoOwnerAndIsShown) {
    faults->Fail({1, "ProgrammingDeviceControl.GetHardwareInfo"});
    faults->Fail({1, "HardwareInfo.GetDeviceType"});
    ConnectDevice(6);
    RaiseState(7);
    RaiseState(7);
    ASSERT_EQ(messageService->messages.size(), 3u);
    for (const contract::Message& message : messageService->messages) {
        EXPECT_EQ(message.owner, 0);
        EXPECT_EQ(message.showFlag, 1);
    }
}

TEST_F(DeviceTypeReaderTest, HardwareInfoIsReleasedOnEveryPath) {
    const std::size_t before = interception.LiveWrappers();
    faults->Fail({1, "HardwareInfo.GetDeviceType"});
    ConnectDevice(kKrx20);
    EXPECT_EQ(interception.LiveWrappers(), before);
    ConnectDevice(6);
    EXPECT_EQ(interception.LiveWrappers(), before);
    ConnectDevice(kKrx20);
    EXPECT_EQ(interception.LiveWrappers(), before);
    EXPECT_EQ(TakeMessages().size(), 2u);
}

TEST_F(DeviceTypeReaderTest, ReadingAfterAFailureSucceeds) {
    faults->Fail({1, "ProgrammingDeviceControl.GetHardwareInfo"});
    ConnectDevice(kKrx20);
    EXPECT_EQ(TakeMessages().size(), 1u);
    RaiseState(7);
    EXPECT_EQ(Type(), 4);
    EXPECT_EQ(RowCount(), 3);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

}
