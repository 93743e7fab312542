#include "interception/FaultInjector.h"

#include "contract/ErrorInfo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace interception {

namespace {

using contract::Status;
using testing::ElementsAre;

constexpr Operation kName{"FileInfo.GetName", Delivers::Value};
constexpr Operation kInfo{"FileListing.GetFileInfo", Delivers::Object};

class FaultInjectorTest : public testing::Test {
protected:
    FaultInjectorTest() { contract::ClearErrorInfo(); }

    /// Makes the call, which succeeds with 1 when it is made.
    Status Call(const Operation& operation) {
        return m_faults.Call(operation, [this] {
            m_trace.push_back("call");
            return Status(1);
        });
    }

    std::function<void()> Note(std::string text) {
        return [this, text] { m_trace.push_back(text); };
    }

    CFaultInjector m_faults;
    std::vector<std::string> m_trace;
};

TEST_F(FaultInjectorTest, FailNthCallFailsThatOneOnly) {
    m_faults.Fail({.number = 2}, {.status = Status(-8)});
    EXPECT_EQ(Call(kName), Status(1));
    EXPECT_EQ(Call(kInfo), Status(-8));
    EXPECT_EQ(Call(kInfo), Status(1));
    EXPECT_THAT(m_trace, ElementsAre("call", "call"));
}

TEST_F(FaultInjectorTest, FailNthCallOfOperationCountsThatOperationOnly) {
    m_faults.Fail({.number = 2, .operation = "FileListing.GetFileInfo"});
    EXPECT_EQ(Call(kInfo), Status(1));
    EXPECT_EQ(Call(kName), Status(1));
    EXPECT_EQ(Call(kInfo), contract::kUnspecifiedFailure);
    EXPECT_EQ(Call(kInfo), Status(1));
}

TEST_F(FaultInjectorTest, FailWithDescriptionLeavesIt) {
    m_faults.Fail({.number = 1}, {.status = Status(-8), .description = "flash worn out"});
    EXPECT_EQ(Call(kName), Status(-8));
    EXPECT_EQ(contract::TakeErrorInfo(), "flash worn out");
}

TEST_F(FaultInjectorTest, FailWithoutDescriptionLeavesNone) {
    m_faults.Fail({.number = 1});
    EXPECT_TRUE(Call(kName).IsFailure());
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST_F(FaultInjectorTest, NullForObjectSucceedsWithoutCall) {
    m_faults.DeliverNull({.number = 1});
    EXPECT_EQ(Call(kInfo), contract::kSuccess);
    EXPECT_TRUE(m_trace.empty());
    EXPECT_EQ(m_faults.Fired(), 1u);
}

TEST_F(FaultInjectorTest, NullForValueMakesTheCall) {
    m_faults.DeliverNull({.number = 1});
    EXPECT_EQ(Call(kName), Status(1));
    EXPECT_THAT(m_trace, ElementsAre("call"));
    EXPECT_EQ(m_faults.Fired(), 0u);
}

TEST_F(FaultInjectorTest, CallbacksRunAroundTheChosenCall) {
    m_faults.RunAfter({.number = 2}, Note("after"));
    m_faults.RunBefore({.number = 2}, Note("before"));
    (void)Call(kName);
    (void)Call(kName);
    (void)Call(kName);
    EXPECT_THAT(m_trace, ElementsAre("call", "before", "call", "after", "call"));
    EXPECT_EQ(m_faults.Fired(), 2u);
}

TEST_F(FaultInjectorTest, FailedCallRunsBeforeButNotAfter) {
    m_faults.RunBefore({.number = 1}, Note("before"));
    m_faults.RunAfter({.number = 1}, Note("after"));
    m_faults.Fail({.number = 1});
    EXPECT_TRUE(Call(kName).IsFailure());
    EXPECT_THAT(m_trace, ElementsAre("before"));
}

TEST_F(FaultInjectorTest, CallMadeByCallbackIsCountedAndCanFail) {
    m_faults.RunBefore({.number = 1}, [this] { EXPECT_EQ(Call(kInfo), Status(-8)); });
    m_faults.Fail({.number = 2}, {.status = Status(-8)});
    EXPECT_EQ(Call(kName), Status(1));
    EXPECT_EQ(m_faults.Calls(), 2u);
}

TEST_F(FaultInjectorTest, CallbackCanPickLaterCalls) {
    m_faults.RunBefore({.number = 1}, [this] { m_faults.Fail({.number = 2}); });
    EXPECT_EQ(Call(kName), Status(1));
    EXPECT_TRUE(Call(kName).IsFailure());
}

TEST_F(FaultInjectorTest, CountsIncludeSpoiltCalls) {
    m_faults.Fail({.number = 1});
    (void)Call(kName);
    (void)Call(kInfo);
    (void)Call(kInfo);
    EXPECT_EQ(m_faults.Calls(), 3u);
    EXPECT_EQ(m_faults.Calls("FileListing.GetFileInfo"), 2u);
    EXPECT_EQ(m_faults.Calls("FileInfo.GetSize"), 0u);
}

TEST_F(FaultInjectorTest, ClearForgetsPlansAndCounts) {
    (void)Call(kName);
    m_faults.Fail({.number = 2});
    m_faults.Clear();
    EXPECT_EQ(m_faults.Calls(), 0u);
    EXPECT_EQ(Call(kName), Status(1));
    EXPECT_EQ(Call(kName), Status(1));
}

TEST_F(FaultInjectorTest, PickingACallThatCannotComeThrows) {
    EXPECT_THROW(m_faults.Fail({.number = 1, .operation = "FileInfo.Getname"}),
                 std::invalid_argument);
    EXPECT_THROW(m_faults.DeliverNull({.number = 0}), std::invalid_argument);
}

}

}
