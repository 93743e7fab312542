#include "panel/registration/ComponentCategories.h"

namespace panel {

namespace {

// The identifiers differ in the last digit of the first group only.
constexpr contract::Guid Category(std::uint32_t digit) {
    return {0xA17A3B60 + digit, 0x97BE, 0x4310, {0xAA, 0xA9, 0x6B, 0x0E, 0x8C, 0x0F, 0xA3, 0x6B}};
}

constexpr ComponentCategory kCategories[] = {
    {Category(0), "QRZ WST Component"},
    {Category(1), "QRZ WST User Interface"},
    {Category(2), "QRZ WST Provider"},
    {Category(3), "QRZ WST Configuration Component"},
    {Category(4), "QRZ OPQ MfcMdiComponent"},
    {Category(6), "QRZ OPQ BaseComponent"},
    {Category(5), "QRZ OPQ Feature"},
    {Category(7), "QRZ Settings Component"},
    {Category(8), "QRZ WST Custom Filter Component"},
    {Category(9), "QRZ WST Common Audio Control"},
};

}

std::span<const ComponentCategory> ComponentCategories() { return kCategories; }

}
