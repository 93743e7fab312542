#include "panel/netconf/AddressOrder.h"

#include <gtest/gtest.h>

#include <cstring>

namespace panel {
namespace {

contract::AddressValue InMemory(unsigned char a, unsigned char b, unsigned char c,
                                unsigned char d) {
    const unsigned char bytes[] = {a, b, c, d};
    contract::AddressValue address = 0;
    std::memcpy(&address, bytes, sizeof address);
    return address;
}

TEST(AddressOrderTest, FirstByteInMemoryIsTheHighestOfTheField) {
    EXPECT_EQ(ToFieldAddress(InMemory(192, 168, 0, 1)), 0xC0A80001u);
    EXPECT_EQ(ToDeviceAddress(0xC0A80001u), InMemory(192, 168, 0, 1));
}

TEST(AddressOrderTest, ConversionThereAndBackChangesNothing) {
    for (const std::uint32_t address : {0u, 1u, 0x01020304u, 0xFFFFFFFFu, 0x80000000u}) {
        EXPECT_EQ(ToFieldAddress(ToDeviceAddress(address)), address);
    }
}

}
}
