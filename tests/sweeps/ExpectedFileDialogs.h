#pragma once

#include "tests/sweeps/Observation.h"

#include <string>

namespace sweeps {

class CExpectation;

/// An open or save dialog of the system as it opens.
struct ExpectedFileDialog {
    std::string title = {};
    std::string startFolder = {};
    std::string fileName = {};
    std::string defaultExtension = {};
    /// Descriptions and patterns.
    DialogRows filters = {};
    bool saves = false;
};

/// The dialog, open; whether the panel goes on with what the user takes. A path to read from must
/// not be empty; one to write to is tried whatever it is.
bool ExpectFileDialog(CExpectation& panel, const ExpectedFileDialog& dialog);

}
