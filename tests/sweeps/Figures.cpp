#include "tests/sweeps/Figures.h"

#include "tests/sweeps/Tier.h"

#include <gtest/gtest.h>

#include <iostream>

namespace sweeps {

namespace {

class CPrintFigures final : public testing::Environment {
public:
    void TearDown() override {
        const Figures& figures = TheFigures();
        std::cout << (IsFullTier() ? "swept in full: " : "swept: ") << figures.scenarios
                  << " scenarios, " << figures.runs << " runs, " << figures.callsSpoilt
                  << " calls spoilt, " << figures.events << " events inside of calls and prompts, "
                  << figures.promptsAnswered << " prompts answered, " << figures.leaks
                  << " leaks\n";
    }
};

[[maybe_unused]] const auto* const kEnvironment =
    testing::AddGlobalTestEnvironment(new CPrintFigures); // gtest owns it

}

Figures& TheFigures() {
    static Figures figures;
    return figures;
}

}
