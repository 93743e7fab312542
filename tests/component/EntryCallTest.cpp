#include "component/linux/EntryCall.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace component {

namespace {

using contract::Status;

/// What an entry point returns out of whose work this comes.
template <class Thrown>
std::int32_t CodeOf(Thrown thrown) {
    contract::ClearErrorInfo();
    return Guarded([&]() -> Status { throw thrown; });
}

TEST(EntryCallTest, StatusOfTheOperationIsTheCode) {
    EXPECT_EQ(Guarded([] { return Status::FromBits(0x80040111); }),
              Status::FromBits(0x80040111).Code());
}

TEST(EntryCallTest, LackOfMemoryIsTold) {
    EXPECT_EQ(CodeOf(std::bad_alloc()), Status::FromBits(0x8007000E).Code());
}

TEST(EntryCallTest, ExceptionIsAFailureWithItsText) {
    EXPECT_EQ(CodeOf(std::runtime_error("no catalogue")), Status::FromBits(0x80004005).Code());
    EXPECT_EQ(contract::TakeErrorInfo(), "no catalogue");
}

TEST(EntryCallTest, WhatIsNoExceptionIsAFailureWithoutText) {
    EXPECT_EQ(CodeOf(7), Status::FromBits(0x80004005).Code());
    EXPECT_EQ(contract::TakeErrorInfo(), "");
}

}

}
