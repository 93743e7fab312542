// Texts that a device delivers, in every place of the panel where one is shown: five bytes with the
// model, the sizes that the texts are stretched to, the call that fails with such a text and how it
// is told; then three lines with a file's name, versions and all other texts.

#include "fuzz/panel/TextReader.h"
#include "fuzz/support/Input.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace {

using namespace fuzz;

/// What texts are stretched to: about the panel's limits and far beyond; 0: not at all.
constexpr std::size_t kSizes[] = {0,   19,  20,  40,  79,  80,  81,       110,
                                  111, 199, 256, 257, 260, 300, 64 << 10, 1 << 20};

std::string Stretched(std::string_view text, std::size_t size) {
    std::string stretched(text);
    while (!text.empty() && stretched.size() + text.size() <= size) {
        stretched += text;
    }
    return stretched;
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CInput input(data, size);
    DeviceTexts texts;
    texts.type = input.Below(7);
    const unsigned sizes = input.Number16();
    texts.failingCall = input.Byte();
    texts.flags = input.Byte();
    texts.name = Stretched(input.Line(), kSizes[sizes & 0xF]);
    texts.version = Stretched(input.Line(), kSizes[sizes >> 4 & 0xF]);
    texts.other = Stretched(input.Rest(), kSizes[sizes >> 8 & 0xF]);
    CTextReader(texts).ReadAll();
    return 0;
}
