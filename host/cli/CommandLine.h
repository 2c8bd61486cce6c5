#pragma once

#include "session/ExitCode.h"

namespace trellis {

class HostSession;

// The jobs that open windows, of folders that the command line does not know.
struct WindowJobs {
    ExitCode (*navigator)(HostSession&); // the job without a command
    ExitCode (*gallery)(HostSession&);
    ExitCode (*describeGallery)(HostSession&);
};

// CommandLine: reads the arguments of the program, runs the job they ask for and gives the exit code.
class CommandLine {
public:
    static int Run(int argc, const char* const* argv, const WindowJobs& windows);
};

} // namespace trellis
