#pragma once

#include <cstdint>

namespace sweeps {

class CExpectation;

/// Commands 5 to 9 of the file menu.
void ExpectCodeUpload(CExpectation& panel, int command);

/// Commands 1 to 4; `type` is that of all files that are selected, or 0.
void ExpectWithControlsDisabled(CExpectation& panel, int command, std::uint32_t type);

}
