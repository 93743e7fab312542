#pragma once

#include "contract/device/SelfTestResults.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace panel {

struct SelfTestRow {
    contract::SelfTest test;
    const char* label;
};

/// The start-up self-tests in the order in which they are shown, for every device type.
std::span<const SelfTestRow> SelfTestRows();

struct SelfTestResult {
    std::string_view text;
    bool hasPassed;
};

/// What a result code means; a code that is not known counts as failed.
SelfTestResult DescribeResult(std::int32_t code);

}
