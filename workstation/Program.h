#pragma once

#include <functional>

namespace workstation {

/// The whole program; returns its exit status: 0, 2 when it refuses what it was told to do, 1 when
/// it fails otherwise. A refusal or failure is one line on stderr. Throws nothing.
int RunProgram(int argc, char** argv);

/// Runs `program` and returns its exit status; 1, with one line on stderr, for an exception that
/// comes out of it.
int RunReporting(const std::function<int()>& program);

}
