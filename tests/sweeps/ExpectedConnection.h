#pragma once

#include "contract/Status.h"

namespace sweeps {

class CExpectation;

/// Connecting to the subsystem and to the device's events, as far as it is not done already.
contract::Status ExpectSubsystem(CExpectation& panel);

/// Taking hold of a connection and letting go of it; failures stay silent.
void ExpectAttachment(CExpectation& panel);
void ExpectDetachment(CExpectation& panel);

/// Letting go of everything.
void ExpectEnd(CExpectation& panel);

}
