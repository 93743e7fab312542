#include "contract/Status.h"
#include "contract/device/SelfTestResults.h"

#include <gtest/gtest.h>

namespace {

using contract::Status;

TEST(StatusTest, NegativeCodeIsFailure) {
    EXPECT_TRUE(Status(-1).IsFailure());
    EXPECT_FALSE(Status(0).IsFailure());
    EXPECT_TRUE(Status(1).IsSuccess());
}

TEST(StatusTest, NamedValuesCarryTheirBits) {
    EXPECT_EQ(contract::kInvalidPointer.Code(), -2147467261);
    EXPECT_EQ(contract::kNoSuchInterface.Code(), -2147467262);
    EXPECT_EQ(contract::kUnspecifiedFailure.Code(), -2147467259);
    EXPECT_EQ(contract::kPartialUpdate.Code(), 0x041B1010);
    EXPECT_TRUE(contract::kPartialUpdate.IsSuccess());
}

TEST(SelfTestTest, PositionsRunFromOneToTheCount) {
    EXPECT_EQ(static_cast<int>(contract::SelfTest::FpgaCode), 1);
    EXPECT_EQ(static_cast<int>(contract::SelfTest::Fpga), contract::kSelfTestCount);
}

}
