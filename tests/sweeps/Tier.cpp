#include "tests/sweeps/Tier.h"

#include <cstdlib>
#include <string_view>

namespace sweeps {

bool IsFullTier() {
    const char* const tier = std::getenv("KRX8_SWEEPS");
    return tier && std::string_view(tier) == "full";
}

}
