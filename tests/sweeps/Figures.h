#pragma once

#include <cstddef>

namespace sweeps {

/// How much was swept, printed when the program ends.
struct Figures {
    std::size_t scenarios = 0; ///< scenario, model and mode together
    std::size_t runs = 0;
    std::size_t callsSpoilt = 0;
    std::size_t events = 0;
    std::size_t promptsAnswered = 0;
    std::size_t leaks = 0; ///< references and subscriptions that a panel left behind
};

Figures& TheFigures();

}
