// The summary of the self-tests; the Details command is in SelfTestDetailsTest.cpp.

#include "panel/selftest/SelfTestStatus.h"

#include "tests/support/RoomFixture.h"

#include <utility>

namespace {

using namespace panel;
using namespace simulator;
using namespace support;
using contract::SelfTest;
using testing::ElementsAre;
using testing::IsEmpty;

DeviceDescription DeviceWithResult(SelfTest test, std::int32_t code) {
    DeviceDescription device = HealthyDevice(kKrx20);
    device.selfTests[test] = code;
    return device;
}

Shown CannotGetResults(contract::Status status, const std::string& description = "") {
    return ErrorReport("Cannot get self-test results", "Prommer Maintenance", status, description);
}

class SelfTestStatusTest : public RoomFixture {
protected:
    bool Query() { return rooms->selfTests.QuerySelfTestStatus(); }
};

TEST_F(SelfTestStatusTest, AllTestsOkCountAsPassed) {
    Insert(HealthyDevice(kKrx20));
    EXPECT_TRUE(Query());
    EXPECT_EQ(faults->Calls("ProgrammingDeviceControl.GetSelfTestResults"), 1u);
    EXPECT_EQ(faults->Calls("SelfTestResults.GetResult"), 21u);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(SelfTestStatusTest, IgnoredAndNotRunTestsCountAsPassed) {
    DeviceDescription device = HealthyDevice(kKrx20);
    for (std::int32_t test = 1; test <= 21; ++test) {
        device.selfTests[static_cast<SelfTest>(test)] = test % 3 == 0 ? 0 : test % 3 == 1 ? 2 : 787;
    }
    Insert(device);
    EXPECT_TRUE(Query());
}

class ResultCodeTest : public SelfTestStatusTest,
                       public testing::WithParamInterface<std::pair<std::int32_t, bool>> {};

TEST_P(ResultCodeTest, OneResultDecidesWhetherAllHavePassed) {
    Insert(DeviceWithResult(SelfTest::Flash, GetParam().first));
    EXPECT_EQ(Query(), GetParam().second);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Codes, ResultCodeTest,
    testing::Values(std::pair(0, true), std::pair(1, false), std::pair(2, true),
                    std::pair(787, true), std::pair(788, false), std::pair(789, false),
                    std::pair(790, false), std::pair(791, false), std::pair(792, false),
                    std::pair(793, false), std::pair(794, false), std::pair(795, false),
                    std::pair(796, false), std::pair(809, false), std::pair(812, false),
                    std::pair(813, false), std::pair(814, false)));

TEST_F(SelfTestStatusTest, LogLineIsWrittenBeforeTheFirstCall) {
    Insert(HealthyDevice(kKrx20));
    std::vector<std::string> log;
    faults->RunBefore({1, "ProgrammingDeviceControl.GetSelfTestResults"}, [&] { log = Log(); });
    Query();
    EXPECT_THAT(log, ElementsAre("Querying self-tests results"));
    EXPECT_EQ(Log(), log);
}

TEST_F(SelfTestStatusTest, RefreshIsHeldBackForTheFirstCallOnly) {
    Insert(HealthyDevice(kKrx20));
    std::vector<bool> isAllowed;
    const auto look = [&] { isAllowed.push_back(State().refreshAllowed); };
    faults->RunBefore({1, "ProgrammingDeviceControl.GetSelfTestResults"}, look);
    faults->RunAfter({1, "ProgrammingDeviceControl.GetSelfTestResults"}, look);
    faults->RunBefore({1, "SelfTestResults.GetResult"}, look);
    Query();
    EXPECT_THAT(isAllowed, ElementsAre(false, false, true));
}

TEST_F(SelfTestStatusTest, QueryReleasesTheResults) {
    Insert(HealthyDevice(kKrx20));
    const auto wrappers = interception.LiveWrappers();
    Query();
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

struct RowCase {
    std::size_t row;
    SelfTest test;
};

void PrintTo(const RowCase& value, std::ostream* out) { *out << "row " << value.row; }

class SingleFailureTest : public SelfTestStatusTest, public testing::WithParamInterface<RowCase> {};

TEST_P(SingleFailureTest, QueryStopsAtTheTestThatFailed) {
    Insert(DeviceWithResult(GetParam().test, 1));
    EXPECT_FALSE(Query());
    EXPECT_EQ(faults->Calls("SelfTestResults.GetResult"), GetParam().row);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SingleFailureTest,
    testing::Values(RowCase{1, SelfTest{3}}, RowCase{2, SelfTest{4}}, RowCase{3, SelfTest{9}},
                    RowCase{4, SelfTest{18}}, RowCase{5, SelfTest{7}}, RowCase{6, SelfTest{6}},
                    RowCase{7, SelfTest{12}}, RowCase{8, SelfTest{21}}, RowCase{9, SelfTest{1}},
                    RowCase{10, SelfTest{2}}, RowCase{11, SelfTest{16}}, RowCase{12, SelfTest{11}},
                    RowCase{13, SelfTest{14}}, RowCase{14, SelfTest{17}}, RowCase{15, SelfTest{8}},
                    RowCase{16, SelfTest{13}}, RowCase{17, SelfTest{5}}, RowCase{18, SelfTest{20}},
                    RowCase{19, SelfTest{10}}, RowCase{20, SelfTest{19}},
                    RowCase{21, SelfTest{15}}));

// Failures of the query

TEST_F(SelfTestStatusTest, FailingResultsAreReportedAsNotPassed) {
    Insert(HealthyDevice(kKrx20));
    faults->Fail({1, "ProgrammingDeviceControl.GetSelfTestResults"},
                 {contract::kUnspecifiedFailure, "still testing"});
    EXPECT_FALSE(Query());
    EXPECT_THAT(TakeMessages(),
                ElementsAre(CannotGetResults(contract::kUnspecifiedFailure, "still testing")));
    EXPECT_TRUE(State().refreshAllowed);
    EXPECT_EQ(faults->Calls("SelfTestResults.GetResult"), 0u);
}

TEST_F(SelfTestStatusTest, NullResultsAreReportedAsNotPassed) {
    Insert(HealthyDevice(kKrx20));
    faults->DeliverNull({1, "ProgrammingDeviceControl.GetSelfTestResults"});
    EXPECT_FALSE(Query());
    EXPECT_THAT(TakeMessages(),
                ElementsAre(CannotGetResults(contract::Status::FromBits(0x80004003))));
}

TEST_F(SelfTestStatusTest, QueryWithoutControlIsReportedAsNotPassed) {
    EXPECT_FALSE(Query());
    EXPECT_THAT(TakeMessages(),
                ElementsAre(CannotGetResults(contract::Status::FromBits(0x80004003))));
    EXPECT_THAT(Log(), ElementsAre("Querying self-tests results"));
    EXPECT_TRUE(State().refreshAllowed);
}

TEST_F(SelfTestStatusTest, RefreshIsAllowedWhileAFailureIsShown) {
    Insert(HealthyDevice(kKrx20));
    bool isAllowed = false;
    messageService->whileOpen = [&] { isAllowed = State().refreshAllowed; };
    faults->Fail({1, "ProgrammingDeviceControl.GetSelfTestResults"});
    Query();
    EXPECT_TRUE(isAllowed);
}

class FailingResultTest : public SelfTestStatusTest,
                          public testing::WithParamInterface<std::size_t> {};

TEST_P(FailingResultTest, FailingResultIsReportedOnceAndEndsTheQuery) {
    Insert(HealthyDevice(kKrx20));
    const auto wrappers = interception.LiveWrappers();
    faults->Fail({GetParam(), "SelfTestResults.GetResult"},
                 {contract::Status::FromBits(0x8007001E), "line lost"});
    EXPECT_FALSE(Query());
    EXPECT_THAT(TakeMessages(),
                ElementsAre(CannotGetResults(contract::Status::FromBits(0x8007001E), "line lost")));
    EXPECT_EQ(faults->Calls("SelfTestResults.GetResult"), GetParam());
    EXPECT_EQ(interception.LiveWrappers(), wrappers);
}

INSTANTIATE_TEST_SUITE_P(Queries, FailingResultTest, testing::Values(1u, 5u, 21u));

}
