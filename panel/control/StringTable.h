#pragma once

#include <cstdint>
#include <string>

namespace panel {

/// Ids of the panel's texts; those that a sequence names by their number.
enum class StringId : std::uint16_t {
    SomeTestsFailed = 113,
    TestOk = 114,
    PrommerMaintenance = 166,
    FatalError = 167,
    CannotGetSelfTestResults = 194,
    NotInNormalMode = 196,
};

/// The text of that id (UTF-8, at most 511 bytes); empty when there is none.
std::string LoadPanelString(StringId id);

}
