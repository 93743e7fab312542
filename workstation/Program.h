#pragma once

namespace workstation {

/// The whole program; returns its exit status.
int RunProgram(int argc, char** argv);

}
