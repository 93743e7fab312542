#pragma once

namespace sweeps {

class CExpectation;

/// Reading the device's type, and the refresh that follows for a known one.
void ExpectTypeRead(CExpectation& panel);

/// The refresh, unless it is held back.
void ExpectRefresh(CExpectation& panel);

/// The free memory alone.
void ExpectFreeMemory(CExpectation& panel);

/// The device-dependent controls and the title of the information group.
void ExpectControlsEnabled(CExpectation& panel, bool enable);

}
