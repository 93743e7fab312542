#pragma once

namespace sweeps {

class CExpectation;

/// The offer of a newer update package, and what follows when it is accepted.
void ExpectUpdateCheck(CExpectation& panel);

/// The Update command.
void ExpectUpdate(CExpectation& panel);

}
