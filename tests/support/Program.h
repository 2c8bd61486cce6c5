#pragma once

#include <map>
#include <string>
#include <vector>

namespace trellis::test {

// What a run of the program left behind.
struct ProgramResult {
    int exitCode = -1; // -1 when it ended by a signal
    std::string output;
    std::string messages;
};

// Program: runs the built program as a user does from a shell, in an environment of its own: no settings of the
// machine it runs on, no display.
class Program {
public:
    // Variables set for every run; an empty value unsets one.
    std::map<std::string, std::string> environment;

    ProgramResult Run(const std::vector<std::string>& arguments, const std::string& input = "") const;
};

} // namespace trellis::test
