#pragma once

namespace sweeps {

class CExpectation;

/// Removing all rows, which ends every filling that is under way.
void ExpectListCleared(CExpectation& panel);

/// Filling the file list from the device.
void ExpectListing(CExpectation& panel);

}
