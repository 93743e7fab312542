// Texts that are cut, compared and shown: two bytes with a limit, then a text.

#include "panel/control/Utf8.h"

#include "frontend/headless/Utf8.h"
#include "fuzz/support/Input.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Utf8Oracle.h"
#include "simulator/folder/Utf8.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace {

using namespace fuzz;

bool IsBeginning(std::string_view cut, std::string_view text) {
    return cut.size() <= text.size() && cut == text.substr(0, cut.size());
}

void TryBytes(std::string_view text, std::size_t limit, bool isValid) {
    const std::string_view cut = panel::CutToBytes(text, limit);
    Require(IsBeginning(cut, text), "a cut text is a beginning");
    Require(cut.size() <= limit, "a cut text keeps to its bytes");
    Require(cut.size() == text.size() || cut.size() + 3 >= limit,
            "a cut loses at most the rest of a character");
    if (isValid) {
        RequireEqual(cut, LongestBeginning(text, limit), "valid texts are cut between characters");
    }
}

void TryUnits(std::string_view text, std::size_t limit, bool isValid) {
    const std::string_view cut = panel::CutToUtf16Units(text, limit);
    Require(IsBeginning(cut, text), "a text cut by units is a beginning");
    if (!isValid) {
        // At most three bytes a unit, for whatever they are.
        Require(cut.size() <= 3 * limit, "a text that is not UTF-8 keeps to its units");
        return;
    }
    Require(IsUtf8(cut), "a valid text that is cut by units stays valid");
    Require(Utf16Units(cut) <= limit, "a cut text keeps to its units");
    std::string_view rest = text.substr(cut.size());
    const auto next = TakeCharacter(rest);
    Require(!next || Utf16Units(cut) + (*next > 0xFFFF ? 2 : 1) > limit, "nothing more would fit");
}

void TryShowing(std::string_view text, bool isValid) {
    Require(simulator::IsUtf8(text) == isValid, "the simulator knows valid texts");
    const std::string shown = headless::ToShownText(text);
    Require(IsUtf8(shown), "what is shown is valid");
    Require((shown == text) == isValid, "valid texts are shown as they are, and only these");
    RequireEqual(headless::ToShownText(shown), shown, "what is shown is shown the same");
    if (isValid) {
        Require(simulator::CharactersOf(text) == Utf16Units(text), "text fields count units");
        Require(headless::CountCharacters(text) <= Utf16Units(text), "no character is half a unit");
    }
}

void TryComparing(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char letter) {
        return static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    });
    Require(panel::EqualsIgnoringCase(text, text), "a text equals itself");
    Require(panel::EqualsIgnoringCase(text, upper), "a text equals its capitals");
    Require(panel::EqualsIgnoringCase(upper, text), "and these equal the text");
    Require(!panel::EqualsIgnoringCase(text, upper + "x"), "a longer text is another");
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CInput input(data, size);
    const std::size_t limit = input.Number16();
    const std::string_view text = input.Rest();
    const bool isValid = IsUtf8(text);
    for (const std::size_t tried : {limit, limit % (text.size() + 2), std::size_t{0}}) {
        TryBytes(text, tried, isValid);
        TryUnits(text, tried, isValid);
    }
    TryShowing(text, isValid);
    TryComparing(text);
    return 0;
}
