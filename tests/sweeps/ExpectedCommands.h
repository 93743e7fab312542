#pragma once

#include "panel/control/DialogTemplate.h"

#include <cstdint>

namespace sweeps {

class CExpectation;

/// What a button of the panel does.
void ExpectCommand(CExpectation& panel, panel::ControlId button);

/// What a key in the file list does.
void ExpectKey(CExpectation& panel, std::uint16_t virtualKey);

/// The file list's menu, and what is chosen from it.
void ExpectFileMenu(CExpectation& panel);

void ExpectDeletion(CExpectation& panel);
void ExpectReport(CExpectation& panel);
void ExpectNetwork(CExpectation& panel);

}
