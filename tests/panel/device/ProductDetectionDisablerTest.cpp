#include "panel/device/ProductDetectionDisabler.h"

#include "contract/ErrorInfo.h"
#include "panel/control/Trace.h"
#include "tests/support/RoomFixture.h"

#include <optional>

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kInitializing = "Product Detection disabler initializing";
constexpr const char* kDisabling = "Disabling Product Detection";
constexpr const char* kEnabling = "Enabling Product Detection";
constexpr const char* kGetPolling = "ProductDetectionControl.GetPollingEnabled";
constexpr const char* kSetPolling = "ProductDetectionControl.SetPollingEnabled";
constexpr const char* kQuery = "ProductDetection.QueryProductDetectionControl";

const Status kFault = Status::FromBits(0x8007001F);

class ProductDetectionDisablerTest : public RoomFixture {
protected:
    void SetUp() override {
        RoomFixture::SetUp();
        Insert(HealthyDevice(simulator::kKrx20));
        desktop->traceLines.clear();
        faults->Clear();
    }

    void Make(bool suspendNow) { disabler.emplace(rooms->services, suspendNow); }
    void End() { disabler.reset(); }
    void FailCall(const char* operation, std::size_t number = 1) {
        faults->Fail({number, operation}, {kFault, "no answer"});
    }
    static Shown Report(const char* text, const char* context) {
        return ErrorReport(text, context, kFault, "no answer");
    }

    void TearDown() override {
        End();
        RoomFixture::TearDown();
    }

    std::optional<CProductDetectionDisabler> disabler;
};

TEST_F(ProductDetectionDisablerTest, PollingIsOffWhileItLivesAndOnAfterwards) {
    Make(true);
    EXPECT_FALSE(host.PollingEnabled());
    End();
    EXPECT_TRUE(host.PollingEnabled());
    EXPECT_THAT(TakeCalls(),
                ElementsAre("SubsystemAccess.GetSubsystem", "Subsystem.QueryProductInformation",
                            "ProductInformation.GetProductDetection", kQuery, kGetPolling,
                            kSetPolling, kQuery, kSetPolling));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(ProductDetectionDisablerTest, SuspendingAndRestoringAreTraced) {
    Make(true);
    End();
    if (kTraceLines) {
        EXPECT_THAT(desktop->traceLines,
                    ElementsAre("Product polling disabled", "Product polling restored"));
    } else {
        EXPECT_THAT(desktop->traceLines, IsEmpty());
    }
}

TEST_F(ProductDetectionDisablerTest, PollingThatIsOffIsNeverSwitched) {
    host.SetPollingEnabled(false);
    Make(true);
    End();
    EXPECT_FALSE(host.PollingEnabled());
    EXPECT_EQ(faults->Calls(kSetPolling), 0u);
    EXPECT_THAT(desktop->traceLines, IsEmpty());
}

TEST_F(ProductDetectionDisablerTest, WithoutSuspendNothingIsSwitched) {
    Make(false);
    EXPECT_TRUE(host.PollingEnabled());
    End();
    EXPECT_TRUE(host.PollingEnabled());
    EXPECT_EQ(faults->Calls(kGetPolling), 0u);
    EXPECT_EQ(faults->Calls(kSetPolling), 0u);
    EXPECT_EQ(faults->Calls(kQuery), 1u);
}

TEST_F(ProductDetectionDisablerTest, SuspendMayComeLater) {
    Make(false);
    disabler->Suspend();
    EXPECT_FALSE(host.PollingEnabled());
    End();
    EXPECT_TRUE(host.PollingEnabled());
}

TEST_F(ProductDetectionDisablerTest, InnerOfTwoFindsPollingOffAndLeavesItOff) {
    Make(true);
    { const CProductDetectionDisabler inner(rooms->services, true); }
    EXPECT_FALSE(host.PollingEnabled());
    End();
    EXPECT_TRUE(host.PollingEnabled());
}

TEST_F(ProductDetectionDisablerTest, EveryObjectIsReleased) {
    const auto wrappers = interception.LiveWrappers();
    Make(true);
    EXPECT_EQ(interception.LiveWrappers(), wrappers + 1);
    End();
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

// Failures

class UnobtainableDetectionTest
    : public ProductDetectionDisablerTest,
      public testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(UnobtainableDetectionTest, IsReportedAtBothEndsAndNothingIsSwitched) {
    FailCall(GetParam().first);
    Make(true);
    EXPECT_THAT(TakeMessages(), ElementsAre(Report(GetParam().second, kInitializing)));
    EXPECT_EQ(faults->Calls(kQuery), 0u);
    End();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Query of IProductDetectionControl interface failed",
                                        kEnabling, Status::FromBits(0x80004002))));
    EXPECT_TRUE(host.PollingEnabled());
}

TEST_P(UnobtainableDetectionTest, NullIsReportedLikewise) {
    faults->DeliverNull({1, GetParam().first});
    Make(false);
    const auto shown = TakeMessages();
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].text, GetParam().second);
    EXPECT_EQ(shown[0].description, "");
    End();
    EXPECT_EQ(TakeMessages().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, UnobtainableDetectionTest,
    testing::Values(
        std::pair("SubsystemAccess.GetSubsystem", "IProductInformation instance retrieving failed"),
        std::pair("Subsystem.QueryProductInformation",
                  "IProductInformation instance retrieving failed"),
        std::pair("ProductInformation.GetProductDetection", "IProductDetection getting failed")));

TEST_F(ProductDetectionDisablerTest, SuspendWithoutDetectionReportsAThirdTime) {
    FailCall("SubsystemAccess.GetSubsystem");
    Make(false);
    TakeMessages();
    disabler->Suspend();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Query of IProductDetectionControl interface failed",
                                        kDisabling, Status::FromBits(0x80004002))));
    End();
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(ProductDetectionDisablerTest, FailingQueryIsReportedAndPollingGoesOn) {
    FailCall(kQuery);
    Make(true);
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(Report("Query of IProductDetectionControl interface failed", kDisabling)));
    EXPECT_TRUE(host.PollingEnabled());
    End();
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_EQ(faults->Calls(kSetPolling), 0u);
}

TEST_F(ProductDetectionDisablerTest, NullFromTheQueryIsNoSuchInterface) {
    faults->DeliverNull({1, kQuery});
    Make(true);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("Query of IProductDetectionControl interface failed",
                                        kDisabling, Status::FromBits(0x80004002))));
}

TEST_F(ProductDetectionDisablerTest, UnknownStateIsReportedAndNothingIsSwitched) {
    FailCall(kGetPolling);
    Make(true);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Report("Product Communication state getting failed", kDisabling)));
    End();
    EXPECT_EQ(faults->Calls(kSetPolling), 0u);
    EXPECT_TRUE(host.PollingEnabled());
}

TEST_F(ProductDetectionDisablerTest, PollingThatCouldNotBeStoppedIsResumedAllTheSame) {
    FailCall(kSetPolling);
    Make(true);
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Report("Disabling of product polling failed", kDisabling)));
    EXPECT_TRUE(host.PollingEnabled());
    host.SetPollingEnabled(false);
    End();
    EXPECT_TRUE(host.PollingEnabled());
}

TEST_F(ProductDetectionDisablerTest, FailuresOfRestoringAreReported) {
    FailCall(kSetPolling, 2);
    Make(true);
    End();
    EXPECT_THAT(TakeMessages(),
                ElementsAre(Report("Enabling of product polling failed", kEnabling)));
    FailCall(kQuery, 4);
    Make(true);
    End();
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(Report("Query of IProductDetectionControl interface failed", kEnabling)));
}

TEST_F(ProductDetectionDisablerTest, PollingStaysOffWhenItsControlIsGoneAtTheEnd) {
    FailCall(kQuery, 2);
    Make(true);
    End();
    EXPECT_THAT(
        TakeMessages(),
        ElementsAre(Report("Query of IProductDetectionControl interface failed", kEnabling)));
    EXPECT_EQ(faults->Calls(kSetPolling), 1u);
    EXPECT_FALSE(host.PollingEnabled());
}

TEST_F(ProductDetectionDisablerTest, MissingDetectionIsReportedWithoutAnOlderDescription) {
    faults->DeliverNull({1, "ProductInformation.GetProductDetection"});
    Make(true);
    TakeMessages();
    contract::SetErrorInfo("left by the command");
    disabler->Suspend();
    contract::SetErrorInfo("left by the command");
    End();
    const char* text = "Query of IProductDetectionControl interface failed";
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport(text, kDisabling, Status::FromBits(0x80004002), ""),
                            ErrorReport(text, kEnabling, Status::FromBits(0x80004002), "")));
}

TEST_F(ProductDetectionDisablerTest, NullAccessIsReportedAsInvalidPointer) {
    CPanelView view;
    CDeviceConnection unconnected;
    PanelServices services{view, *rooms->toolkit, rooms->output, unconnected, rooms->state};
    { const CProductDetectionDisabler alone(services, true); }
    EXPECT_THAT(TakeMessages(),
                ElementsAre(ErrorReport("IProductInformation instance retrieving failed",
                                        kInitializing, Status::FromBits(0x80004003)),
                            ErrorReport("Query of IProductDetectionControl interface failed",
                                        kEnabling, Status::FromBits(0x80004002))));
}

}
