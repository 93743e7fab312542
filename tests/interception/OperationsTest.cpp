#include "interception/Operations.h"

#include <gtest/gtest.h>

#include <set>

namespace interception {

namespace {

std::set<std::string_view> DistinctNames(std::span<const Operation> table) {
    std::set<std::string_view> names;
    for (const Operation& operation : table) {
        names.insert(operation.name);
    }
    return names;
}

TEST(OperationsTest, NamesAreDistinct) {
    EXPECT_EQ(DistinctNames(Operations()).size(), Operations().size());
    EXPECT_EQ(DistinctNames(Events()).size(), Events().size());
}

TEST(OperationsTest, FindKnownOperationReturnsItsEntry) {
    const Operation* operation = FindOperation("FileListing.GetFileInfo");
    ASSERT_NE(operation, nullptr);
    EXPECT_EQ(operation->name, "FileListing.GetFileInfo");
    EXPECT_EQ(operation->delivers, Delivers::Object);
    EXPECT_EQ(operation->provider, Provider::Device);
}

TEST(OperationsTest, FindHostOperationNamesItsProvider) {
    ASSERT_NE(FindOperation("Context.Register"), nullptr);
    EXPECT_EQ(FindOperation("Context.Register")->provider, Provider::Host);
}

TEST(OperationsTest, FindUnknownNameReturnsNull) {
    EXPECT_EQ(FindOperation("FileListing.GetFileinfo"), nullptr);
    EXPECT_EQ(FindOperation("FileListing"), nullptr);
    EXPECT_EQ(FindOperation(""), nullptr);
}

TEST(OperationsTest, FindEventAsOperationReturnsNull) {
    EXPECT_EQ(FindOperation("ProgrammingDeviceControlEvents.ModeChanged"), nullptr);
    EXPECT_EQ(PositionIn(Events(), "ProgrammingDeviceControlEvents.ModeChanged"), 0u);
}

}

}
