#include "panel/selftest/SelfTestTable.h"

#include <algorithm>
#include <iterator>

namespace panel {

namespace {

using contract::SelfTest;

constexpr SelfTestRow kRows[] = {
    {SelfTest::ApplicationSw, "Application SW"},
    {SelfTest::BootCode, "Boot code"},
    {SelfTest::Eeprom, "EEPROM"},
    {SelfTest::Ethernet, "Ethernet"},
    {SelfTest::ExternalFlash, "External Flash"},
    {SelfTest::ExternalRam, "External RAM"},
    {SelfTest::Flash, "Flash"},
    {SelfTest::Fpga, "FPGA"},
    {SelfTest::FpgaCode, "FPGA Code"},
    {SelfTest::FpgaLoad, "FPGA Load"},
    {SelfTest::UsbHostController, "USB Host Controller"},
    {SelfTest::Mcusw, "MCUSW"},
    {SelfTest::MmcrDriver, "MMCR driver"},
    {SelfTest::ZtwcdcDriver, "ZTWCDC driver"},
    {SelfTest::PagedFlash, "Paged Flash"},
    {SelfTest::PagedRam, "Paged RAM"},
    {SelfTest::Ram, "RAM"},
    {SelfTest::Rs232, "RS-232"},
    {SelfTest::SecondaryAndAlgorithmFiles, "Secondary and Algorithm files"},
    {SelfTest::Usb, "USB"},
    {SelfTest::UsbDeviceFunction, "USB Device Function"},
};
static_assert(std::size(kRows) == contract::kSelfTestCount);

struct KnownResult {
    std::int32_t code;
    SelfTestResult result;
};

constexpr KnownResult kKnownResults[] = {
    {0, {"OK", true}},
    {1, {"Failed", false}},
    {2, {"Ignored", true}},
    {787, {"Not run", true}},
    {788, {"File missing", false}},
    {789, {"File invalid", false}},
    {790, {"Certificate missing", false}},
    {791, {"Certificate invalid", false}},
    {792, {"Authentication failed", false}},
    {793, {"Flash not found", false}},
    {794, {"Flash not usable", false}},
    {795, {"Driver failed", false}},
    {809, {"Public Key failed", false}},
    {812, {"Media not found", false}},
    {813, {"Media not supported", false}},
    {814, {"Media not usable", false}},
};

}

std::span<const SelfTestRow> SelfTestRows() { return kRows; }

SelfTestResult DescribeResult(std::int32_t code) {
    const auto* known =
        std::find_if(std::begin(kKnownResults), std::end(kKnownResults),
                     [code](const KnownResult& candidate) { return candidate.code == code; });
    return known == std::end(kKnownResults) ? SelfTestResult{"unknown result", false}
                                            : known->result;
}

}
