#pragma once

namespace sweeps {

class CExpectation;

/// The summary of the start-up self-tests: whether all have passed.
bool ExpectSelfTestQuery(CExpectation& panel);

/// The Details command.
void ExpectDetails(CExpectation& panel);

}
