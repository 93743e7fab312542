#include "interception/FunctionRef.h"

#include <gtest/gtest.h>

#include <string>

namespace interception {

namespace {

TEST(FunctionRefTest, CallReachesTheCallableItself) {
    int calls = 0;
    const auto count = [&calls] { return ++calls; };
    const FunctionRef<int()> reference = count;
    EXPECT_EQ(reference(), 1);
    EXPECT_EQ(reference(), 2);
    EXPECT_EQ(calls, 2);
}

TEST(FunctionRefTest, CopyCallsTheSameCallable) {
    int calls = 0;
    auto count = [calls]() mutable { return ++calls; };
    const FunctionRef<int()> first = count;
    const FunctionRef<int()> second = first;
    EXPECT_EQ(first(), 1);
    EXPECT_EQ(second(), 2);
}

TEST(FunctionRefTest, ArgumentsPassByReference) {
    const auto append = [](std::string& text) { text += "!"; };
    std::string text = "ready";
    FunctionRef<void(std::string&)>{append}(text);
    EXPECT_EQ(text, "ready!");
}

}

}
