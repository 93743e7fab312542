#pragma once

#include "contract/Status.h"

namespace sweeps {

class CExpectation;

/// Which of the host's objects: of context and connection it has two that do the same.
enum class Handed { None, First, Other };

/// Taking a context, and becoming its member.
void ExpectContext(CExpectation& panel, Handed context);
contract::Status ExpectRegistration(CExpectation& panel, Handed context);

/// Connecting to the subsystem and to the device's events, as far as it is not done already.
contract::Status ExpectSubsystem(CExpectation& panel);

/// Letting go of one connection and taking hold of another, or of none; failures stay silent.
void ExpectConnection(CExpectation& panel, Handed connection);

/// Letting go of everything.
void ExpectEnd(CExpectation& panel);

}
