#include "workstation/Program.h"

int main(int argc, char** argv) { return workstation::RunProgram(argc, argv); }
