#pragma once

namespace trellis {

// ExitCode: what the program tells the shell.
enum class ExitCode {
    Fine = 0,
    FoundProblem = 1,      // the job ran and found something wrong
    WrongUse = 2,          // the command line or a script cannot be understood
    EnvironmentFailed = 3, // settings, database, module or display are not as they must be
};

} // namespace trellis
