#pragma once

#include <optional>
#include <string>

namespace sweeps {

class CExpectation;

/// Removing all rows, which ends every filling that is under way.
void ExpectListCleared(CExpectation& panel);

/// Filling the file list from the device, with the file of that name selected if there is one, else
/// with the first one.
void ExpectListing(CExpectation& panel, const std::optional<std::string>& selectName = {});

}
