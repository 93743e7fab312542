#include "contract/ErrorInfo.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace {

TEST(ErrorInfoTest, TakeReturnsTheDescriptionOnce) {
    contract::SetErrorInfo("cable unplugged");
    EXPECT_EQ(contract::TakeErrorInfo(), "cable unplugged");
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST(ErrorInfoTest, LaterDescriptionReplacesEarlier) {
    contract::SetErrorInfo("first");
    contract::SetErrorInfo("second");
    EXPECT_EQ(contract::TakeErrorInfo(), "second");
}

TEST(ErrorInfoTest, ClearLeavesNothingToTake) {
    contract::SetErrorInfo("stale");
    contract::ClearErrorInfo();
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

TEST(ErrorInfoTest, ClearerClearsDescriptionsSetAfterItWasMade) {
    contract::CErrorInfoClearer clearer;
    contract::SetErrorInfo("stale");
    clearer.Clear();
    EXPECT_EQ(contract::TakeErrorInfo(), "");
    contract::SetErrorInfo("left by the next call");
    EXPECT_EQ(contract::TakeErrorInfo(), "left by the next call");
}

TEST(ErrorInfoTest, ClearerLeavesOtherThreadsTheirs) {
    contract::SetErrorInfo("mine");
    std::thread([] { contract::CErrorInfoClearer().Clear(); }).join();
    EXPECT_EQ(contract::TakeErrorInfo(), "mine");
}

TEST(ErrorInfoTest, DescriptionStaysWithItsThread) {
    contract::SetErrorInfo("mine");
    std::string seenElsewhere = "not read";
    std::thread([&] { seenElsewhere = contract::TakeErrorInfo(); }).join();
    EXPECT_EQ(seenElsewhere, "");
    EXPECT_EQ(contract::TakeErrorInfo(), "mine");
}

}
