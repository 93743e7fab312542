#pragma once

#include "contract/Status.h"

#include <cstdint>

namespace contract {

/// A start-up self-test. The value is the position of its query in the results interface (1 = the
/// first own operation), which a binary interface keeps as the order of its methods.
enum class SelfTest : std::int32_t {
    FpgaCode = 1,
    FpgaLoad = 2,
    ApplicationSw = 3,
    BootCode = 4,
    Ram = 5,
    ExternalRam = 6,
    ExternalFlash = 7,
    PagedFlash = 8,
    Eeprom = 9,
    SecondaryAndAlgorithmFiles = 10,
    Mcusw = 11,
    Flash = 12,
    PagedRam = 13,
    MmcrDriver = 14,
    UsbDeviceFunction = 15,
    UsbHostController = 16,
    ZtwcdcDriver = 17,
    Ethernet = 18,
    Usb = 19,
    Rs232 = 20,
    Fpga = 21,
};

/// Number of self-tests; their values run from 1 to it.
inline constexpr std::int32_t kSelfTestCount = 21;

/// Results of the self-tests that the device ran when it last started. One call at a time, on the
/// thread of the call (see ProgrammingDeviceControl.h).
class ISelfTestResults {
public:
    virtual ~ISelfTestResults() = default;

    /// Result code of one test: 0 OK, 1 failed, 2 ignored, 787 not run, 788 file missing, 789 file
    /// invalid, 790 certificate missing, 791 certificate invalid, 792 authentication failed, 793
    /// flash not found, 794 flash not usable, 795 driver failed, 809 public key failed, 812 media
    /// not found, 813 media not supported, 814 media not usable. Codes 0, 2 and 787 count as
    /// passed, every other one as failed. Every device answers all tests (a test that it does not
    /// have is "not run"). Untouched on failure.
    virtual Status GetResult(SelfTest test, std::int32_t& code) = 0;
};

}
