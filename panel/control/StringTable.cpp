#include "panel/control/StringTable.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace panel {

namespace {

struct Entry {
    StringId id;
    std::string_view text;
};

constexpr Entry kStrings[] = {
    {StringId::SomeTestsFailed, "Some tests failed"},
    {StringId::TestOk, "TEST OK"},
    {StringId::PrommerMaintenance, "Prommer Maintenance"},
    // Service instructions quote this text with its slip, so it stays.
    {StringId::FatalError, "A fatal error has occured, please restart Halcyon and try again."},
    {StringId::CannotGetSelfTestResults, "Cannot get self-test results"},
    {StringId::NotInNormalMode,
     "The Programming Device is not in Normal mode and therefore some information about the "
     "Programming Device can be incorrect.\n\n"
     "This can be a result of invalid or broken software of the Programming Device. "
     "Please, update the Programming Device"},
};

// What shows a text reserves 512 bytes for it, terminator included.
constexpr std::size_t kLongestText = 511;
static_assert(std::all_of(std::begin(kStrings), std::end(kStrings),
                          [](const Entry& entry) { return entry.text.size() <= kLongestText; }));

}

std::string LoadPanelString(StringId id) {
    const auto* entry = std::find_if(std::begin(kStrings), std::end(kStrings),
                                     [id](const Entry& candidate) { return candidate.id == id; });
    return entry == std::end(kStrings) ? std::string() : std::string(entry->text);
}

}
