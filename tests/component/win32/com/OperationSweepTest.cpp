#include "interception/Operations.h"
#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/component/win32/com/SweptOperations.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <new>
#include <stdexcept>

namespace component {

namespace {

using contract::Status;
using interception::Answer;
using interception::Outcome;

constexpr Status kOtherSuccess{7};
constexpr Status kOtherFailure{-77};

const Answer kFailureThatSaysWhy{kOtherFailure, [] { contract::SetErrorInfo("Kabel lose 🔌"); }};

std::string TestName(const testing::TestParamInfo<SweptOperation>& info) {
    std::string name = info.param.name;
    std::ranges::replace(name, '.', '_');
    return name;
}

TEST(OperationTableTest, EveryOperationOfTheContractIsTested) {
    // Those that are no calls of the same method in COM have tests of their own.
    std::vector<std::string> tested = {"Connection.QueryBaseObject",
                                       "Context.QueryMessageService",
                                       "ExtConnectionEvents.FindEventSource",
                                       "ExtConnectionEvents.Subscribe",
                                       "ExtConnectionEvents.Unsubscribe",
                                       "Krx20SwInfo.GetTypeInfo",
                                       "MessageService.ShowMessage",
                                       "ProgrammingDeviceControl.QueryBaseObject",
                                       "ProgrammingDeviceControlEvents.FindEventSource",
                                       "ProgrammingDeviceControlEvents.Subscribe",
                                       "ProgrammingDeviceControlEvents.Unsubscribe",
                                       "SelfTestResults.GetResult"};
    std::ranges::copy(Queries(), std::back_inserter(tested));
    std::ranges::transform(SweptOperations(), std::back_inserter(tested), &SweptOperation::name);
    std::vector<std::string> wanted = {"ContextMember.SetContextAndRegister",
                                       "ContextMember.SetContext", "ConnectionClient.SetConnection",
                                       "SetSubsystemAccess.SetSubsystemAccess", "GoClient.Go"};
    for (const interception::Operation& operation : interception::Operations()) {
        wanted.emplace_back(operation.name);
    }
    EXPECT_THAT(tested, testing::UnorderedElementsAreArray(wanted));
}

class OperationSweepTest : public BridgeFixture,
                           public testing::WithParamInterface<SweptOperation> {
protected:
    Outcome RunThroughCom(const Answer& answer) { return GetParam().roundTrip(*m_bridge, answer); }
    ClientOutcome CallAsClient(const Answer& answer) { return GetParam().call(*m_bridge, answer); }
};

TEST_P(OperationSweepTest, CallReachesObjectOnceWithItsArguments) {
    const Outcome outcome = RunThroughCom(kOtherSuccess);
    ASSERT_EQ(outcome.received.size(), 1u);
    EXPECT_EQ(outcome.received.front().method, outcome.expected.method);
    EXPECT_EQ(outcome.received.front().arguments, outcome.expected.arguments);
}

TEST_P(OperationSweepTest, SuccessReturnsStatusAndResultsOfObject) {
    const Outcome outcome = RunThroughCom(kOtherSuccess);
    EXPECT_EQ(outcome.status, kOtherSuccess);
    EXPECT_EQ(outcome.after, outcome.delivered);
}

TEST_P(OperationSweepTest, PartialSuccessPassesUnchanged) {
    EXPECT_EQ(RunThroughCom(Status::FromBits(0x041B1010)).status, Status::FromBits(0x041B1010));
}

TEST_P(OperationSweepTest, FailureReturnsStatusAndLeavesResultsUntouched) {
    const Outcome outcome = RunThroughCom(kFailureThatSaysWhy);
    EXPECT_EQ(outcome.status, kOtherFailure);
    EXPECT_EQ(outcome.after, outcome.before);
}

TEST_P(OperationSweepTest, FailureBringsItsDescriptionBack) {
    (void)RunThroughCom(kFailureThatSaysWhy);
    EXPECT_EQ(contract::TakeErrorInfo(), "Kabel lose 🔌");
}

TEST_P(OperationSweepTest, FailureWithoutDescriptionBringsNoEarlierOne) {
    contract::SetErrorInfo("of an earlier call");
    LeaveDescription(L"of an earlier call in COM");
    (void)RunThroughCom(kOtherFailure);
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST_P(OperationSweepTest, SuccessLeavesNoDescriptionInCom) {
    LeaveDescription(L"of an earlier call in COM");
    (void)RunThroughCom({kOtherSuccess, [] { contract::SetErrorInfo("passed over"); }});
    EXPECT_EQ(TakeDescription(), L"");
}

TEST_P(OperationSweepTest, FailingCallOfClientDeliversNullAndLeavesNumbers) {
    const ClientOutcome outcome = CallAsClient(kOtherFailure);
    EXPECT_EQ(outcome.call.result, -77);
    EXPECT_EQ(outcome.received, 1u);
    EXPECT_TRUE(outcome.call.isAsFailureLeavesIt);
}

TEST_P(OperationSweepTest, FailingCallOfClientLeavesDescription) {
    CallAsClient(kFailureThatSaysWhy);
    EXPECT_EQ(TakeDescription(), L"Kabel lose \xD83D\xDD0C");
}

TEST_P(OperationSweepTest, CallWhileMemoryIsOutFails) {
    LeaveDescription(L"of an earlier call in COM");
    const ClientOutcome outcome = CallAsClient({{}, [] { throw std::bad_alloc(); }});
    EXPECT_EQ(outcome.call.result, E_OUTOFMEMORY);
    EXPECT_TRUE(outcome.call.isAsFailureLeavesIt);
    EXPECT_EQ(TakeDescription(), L"");
}

TEST_P(OperationSweepTest, ExceptionBecomesFailureWithItsText) {
    const ClientOutcome outcome = CallAsClient({{}, [] { throw std::runtime_error("broken"); }});
    EXPECT_EQ(outcome.call.result, E_FAIL);
    EXPECT_TRUE(outcome.call.isAsFailureLeavesIt);
    EXPECT_EQ(TakeDescription(), L"broken");
}

TEST_P(OperationSweepTest, ExceptionOfAnyTypeBecomesFailure) {
    EXPECT_EQ(CallAsClient({{}, [] { throw 42; }}).call.result, E_FAIL);
}

TEST_P(OperationSweepTest, CallFromAnotherThreadIsRefused) {
    ClientOutcome outcome;
    std::thread([&] { outcome = CallAsClient(kOtherSuccess); }).join();
    EXPECT_EQ(outcome.call.result, RPC_E_WRONG_THREAD);
    EXPECT_TRUE(outcome.call.isAsFailureLeavesIt);
    EXPECT_EQ(outcome.received, 0u);
}

INSTANTIATE_TEST_SUITE_P(Operations, OperationSweepTest, testing::ValuesIn(SweptOperations()),
                         TestName);

std::vector<SweptOperation> OperationsWithResults() {
    std::vector<SweptOperation> chosen;
    std::ranges::copy_if(SweptOperations(), std::back_inserter(chosen),
                         &SweptOperation::hasResults);
    return chosen;
}

class ResultSweepTest : public OperationSweepTest {};

TEST_P(ResultSweepTest, NullForResultFailsWithoutCall) {
    LeaveDescription(L"of an earlier call in COM");
    const ClientOutcome outcome = GetParam().callWithNulls(*m_bridge);
    EXPECT_EQ(outcome.call.result, E_POINTER);
    EXPECT_EQ(outcome.received, 0u);
    EXPECT_EQ(TakeDescription(), L"");
}

INSTANTIATE_TEST_SUITE_P(Results, ResultSweepTest, testing::ValuesIn(OperationsWithResults()),
                         TestName);

}

}
