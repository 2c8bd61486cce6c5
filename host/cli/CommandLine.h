#pragma once

#include "session/ExitCode.h"

namespace trellis {

class HostSession;

// CommandLine: reads the arguments of the program, runs the job they ask for and gives the exit code.
class CommandLine {
public:
    // `runWindows` is the job without a command.
    static int Run(int argc, const char* const* argv, ExitCode (*runWindows)(HostSession&));
};

} // namespace trellis
