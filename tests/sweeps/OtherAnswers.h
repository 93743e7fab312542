#pragma once

#include "tests/sweeps/Plan.h"

#include <vector>

namespace sweeps {

class CSweep;

/// Every other way in which the user can answer what the undisturbed scenario asks.
std::vector<Answers> OtherAnswers(const CSweep& sweep);

}
