#pragma once

#include "contract/Status.h"

#include <gtest/gtest.h>

#include <memory>

namespace simulator {

/// What an operation delivers, which must succeed: `ValueOf(*info, &IFileInfo::GetName)`.
template <class Value, class Object>
Value ValueOf(Object& object, contract::Status (Object::*operation)(Value&)) {
    Value value{};
    EXPECT_EQ((object.*operation)(value), contract::kSuccess);
    return value;
}

/// The same for an object, which must be there.
template <class Interface, class Object>
std::shared_ptr<Interface>
ObjectOf(Object& object, contract::Status (Object::*operation)(std::shared_ptr<Interface>&)) {
    auto result = ValueOf<std::shared_ptr<Interface>>(object, operation);
    EXPECT_NE(result, nullptr);
    return result;
}

/// Expects `status` with `description`, which it takes.
void ExpectFailure(contract::Status status, std::uint32_t bits, const std::string& description);

}
