#pragma once

#include "interception/Operations.h"

#include <cstddef>

namespace interception {

/// How a forwarder treats an operation.
enum class Treatment { Plain, ForObject, Event };

/// An operation as a forwarder names it. Made from a literal at compile time only: a name that the
/// tables do not list, or that asks for another treatment, does not compile.
template <Treatment treatment>
class OperationKey {
public:
    consteval OperationKey(const char* name) : m_operation(&Require(name)) {}

    constexpr const Operation& operator*() const { return *m_operation; }

private:
    /// Works with positions, not with null: under sanitizers the compiler does not take the
    /// comparison of an element's address with null for a constant.
    static consteval const Operation& Require(const char* name) {
        const auto table = treatment == Treatment::Event ? Events() : Operations();
        const std::size_t position = PositionIn(table, name);
        if (position == table.size()) {
            throw "The tables do not list this operation.";
        }
        if ((table[position].delivers == Delivers::Object) != (treatment == Treatment::ForObject)) {
            throw "Operations that deliver an object, and no others, use CallForObject.";
        }
        return table[position];
    }

    const Operation* m_operation;
};

using PlainOperation = OperationKey<Treatment::Plain>;
using ObjectOperation = OperationKey<Treatment::ForObject>;
using EventOperation = OperationKey<Treatment::Event>;

}
