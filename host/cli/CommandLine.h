#pragma once

namespace trellis {

// CommandLine: reads the arguments of the program, runs the job they ask for and gives the exit code.
class CommandLine {
public:
    static int Run(int argc, const char* const* argv);
};

} // namespace trellis
