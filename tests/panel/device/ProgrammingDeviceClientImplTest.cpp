#include "panel/device/ProgrammingDeviceClientImpl.h"

#include "contract/ErrorInfo.h"
#include "frontend/headless/HeadlessToolkit.h"
#include "tests/support/PanelFixture.h"

#include <ostream>
#include <string>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kText = "Connecting to KxProgrammingDevice subsystem failed";
constexpr const char* kContext = "SetSubsystemAccess";
constexpr Status kDenied = Status::FromBits(0x80070005);
constexpr Status kPointerMissing = Status::FromBits(0x80004003);
constexpr Status kInterfaceMissing = Status::FromBits(0x80004002);

class ProgrammingDeviceClientImplTest : public PanelFixture {
protected:
    void SetUp() override { StartView(); }

    Status SetAccess() {
        return panel->SetSubsystemAccess(interception.Wrap(host.SubsystemAccess()));
    }
};

TEST_F(ProgrammingDeviceClientImplTest, ConnectingSucceedsSilently) {
    EXPECT_EQ(SetAccess(), contract::kSuccess);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_EQ(host.DeviceSubscriberCount(), 1u);
}

TEST_F(ProgrammingDeviceClientImplTest, ConnectingTouchesNoDevice) {
    host.InsertDevice(CDevice::Create(HealthyDevice(kKrx20)));
    EXPECT_EQ(SetAccess(), contract::kSuccess);
    EXPECT_EQ(Field(201), "KRX-8 Info");
    EXPECT_FALSE(IsEnabled(226));
}

TEST_F(ProgrammingDeviceClientImplTest, NullAccessIsReportedAsInvalidPointer) {
    EXPECT_EQ(panel->SetSubsystemAccess(nullptr), kPointerMissing);
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport(kText, kContext, kPointerMissing)));
}

TEST_F(ProgrammingDeviceClientImplTest, NullAccessOnceConnectedIsSilent) {
    EXPECT_EQ(SetAccess(), contract::kSuccess);
    EXPECT_EQ(panel->SetSubsystemAccess(nullptr), contract::kSuccess);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(ProgrammingDeviceClientImplTest, NullAccessForgetsAnOlderDescription) {
    contract::SetErrorInfo("an earlier failure");
    EXPECT_EQ(panel->SetSubsystemAccess(nullptr), kPointerMissing);
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport(kText, kContext, kPointerMissing, "")));
}

TEST_F(ProgrammingDeviceClientImplTest, ReportHasNoOwnerAndIsShown) {
    EXPECT_EQ(panel->SetSubsystemAccess(nullptr), kPointerMissing);
    ASSERT_EQ(messageService->messages.size(), 1u);
    EXPECT_EQ(messageService->messages[0].owner, 0);
    EXPECT_EQ(messageService->messages[0].showFlag, 1);
}

TEST_F(ProgrammingDeviceClientImplTest, RepeatedFailureIsReportedEachTime) {
    faults->Fail({1, "SubsystemAccess.GetSubsystem"}, {.status = kDenied});
    faults->Fail({2, "SubsystemAccess.GetSubsystem"}, {.status = kDenied});
    EXPECT_EQ(SetAccess(), kDenied);
    EXPECT_EQ(SetAccess(), kDenied);
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport(kText, kContext, kDenied),
                                            ErrorReport(kText, kContext, kDenied)));
    EXPECT_EQ(SetAccess(), contract::kSuccess);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

class FailingStepTest : public ProgrammingDeviceClientImplTest,
                        public testing::WithParamInterface<std::string> {};

TEST_P(FailingStepTest, FailureIsReportedOnceWithStatusAndDescription) {
    faults->Fail({1, GetParam()}, {.status = kDenied, .description = "no such luck"});
    EXPECT_EQ(SetAccess(), kDenied);
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport(kText, kContext, kDenied, "no such luck")));
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_P(FailingStepTest, EndOfThePanelLeavesNothingBehind) {
    faults->Fail({1, GetParam()}, {.status = kDenied});
    EXPECT_EQ(SetAccess(), kDenied);
    EndPanel();
}

INSTANTIATE_TEST_SUITE_P(Steps, FailingStepTest,
                         testing::Values("SubsystemAccess.GetSubsystem",
                                         "Subsystem.QueryProgrammingDeviceSubsystem",
                                         "ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl",
                                         "ProgrammingDeviceControl.QueryBaseObject",
                                         "ProgrammingDeviceControlEvents.FindEventSource",
                                         "ProgrammingDeviceControlEvents.Subscribe"));

struct NullStep {
    const char* operation;
    Status status;

    friend std::ostream& operator<<(std::ostream& out, const NullStep& step) {
        return out << step.operation;
    }
};

class NullStepTest : public ProgrammingDeviceClientImplTest,
                     public testing::WithParamInterface<NullStep> {};

TEST_P(NullStepTest, NullIsReportedWithoutDescription) {
    faults->RunBefore({1, GetParam().operation}, [] { contract::SetErrorInfo("all is well"); });
    faults->DeliverNull({1, GetParam().operation});
    EXPECT_EQ(SetAccess(), GetParam().status);
    EXPECT_THAT(TakeMessages(), ElementsAre(ErrorReport(kText, kContext, GetParam().status, "")));
}

INSTANTIATE_TEST_SUITE_P(
    Steps, NullStepTest,
    testing::Values(NullStep{"SubsystemAccess.GetSubsystem", kPointerMissing},
                    NullStep{"Subsystem.QueryProgrammingDeviceSubsystem", kInterfaceMissing},
                    NullStep{"ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl",
                             kPointerMissing},
                    NullStep{"ProgrammingDeviceControl.QueryBaseObject", kInterfaceMissing},
                    NullStep{"ProgrammingDeviceControlEvents.FindEventSource", kPointerMissing}));

TEST_F(ProgrammingDeviceClientImplTest, WarningOfTheSubscriptionIsTheResult) {
    faults->Fail({1, "ProgrammingDeviceControlEvents.Subscribe"}, {.status = Status(1)});
    EXPECT_EQ(SetAccess(), Status(1));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(ProgrammingDeviceClientImplTest, FailedSubscriptionLeavesAPanelThatOnlyHearsNothing) {
    faults->Fail({1, "ProgrammingDeviceControlEvents.Subscribe"}, {.status = kDenied});
    EXPECT_EQ(SetAccess(), kDenied);
    EXPECT_EQ(SetAccess(), contract::kSuccess);
    ASSERT_EQ(panel->SetConnection(interception.Wrap(host.Connection())), contract::kSuccess);
    TakeMessages();
    ConnectDevice(kKrx20);
    EXPECT_EQ(Field(212), "HW 2.1");
    EXPECT_EQ(State().deviceMode, DeviceMode{0});
    EXPECT_EQ(host.DeviceSubscriberCount(), 0u);
    // The mode's answer was not heard, so the panel warns.
    EXPECT_EQ(TakeMessages().size(), 1u);
}

class ReenteredStepTest : public ProgrammingDeviceClientImplTest,
                          public testing::WithParamInterface<std::string> {};

TEST_P(ReenteredStepTest, AccessHandedOverAnewMeanwhileSubscribesOnce) {
    faults->RunBefore({1, GetParam()}, [this] { EXPECT_EQ(SetAccess(), contract::kSuccess); });
    EXPECT_EQ(SetAccess(), contract::kSuccess);
    EXPECT_EQ(faults->Fired(), 1u);
    EXPECT_EQ(host.DeviceSubscriberCount(), 1u);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EndPanel();
}

INSTANTIATE_TEST_SUITE_P(Steps, ReenteredStepTest,
                         testing::Values("SubsystemAccess.GetSubsystem",
                                         "Subsystem.QueryProgrammingDeviceSubsystem",
                                         "ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl",
                                         "ProgrammingDeviceControl.QueryBaseObject",
                                         "ProgrammingDeviceControlEvents.FindEventSource",
                                         "ProgrammingDeviceControlEvents.Subscribe"));

TEST_F(ProgrammingDeviceClientImplTest, ControlObtainedMeanwhileIsNotObtainedAgain) {
    faults->RunBefore({1, "SubsystemAccess.GetSubsystem"},
                      [this] { EXPECT_EQ(SetAccess(), contract::kSuccess); });
    EXPECT_EQ(SetAccess(), contract::kSuccess);
    EXPECT_EQ(faults->Calls("ProgrammingDeviceSubsystem.get_ProgrammingDeviceControl"), 1u);
}

TEST_F(ProgrammingDeviceClientImplTest, ReportWithoutViewOrContextIsAPlainBox) {
    const auto fresh =
        panel::CKRX8Maintenance::Create(std::make_unique<headless::CHeadlessToolkit>(desktop));
    desktop->prompts.Answer(1);
    EXPECT_EQ(fresh->SetSubsystemAccess(nullptr), kPointerMissing);
    EXPECT_THAT(
        desktop->prompts.Boxes(),
        ElementsAre(headless::ShownBox{"Connecting to KxProgrammingDevice subsystem failed\r\n"
                                       "HRESULT 0x80004003 (-2147467261)",
                                       "SetSubsystemAccess", 0x10, 1}));
}

}
