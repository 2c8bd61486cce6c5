#pragma once

#include "values/ZOLGYRError.h"

#include <string>
#include <vector>

namespace trellis {

// One thing that is wrong with a file that is read: where, and the number of a message with its parameters.
struct ImportProblem {
    int line = 0; // from 1; 0 means the file as a whole
    ZOLGYRError error;

    static ImportProblem Of(int line, int number, const std::vector<std::string>& parameters) {
        ImportProblem problem;
        problem.line = line;
        problem.error.Set(number, 0);
        for (const std::string& parameter : parameters)
            problem.error.Add(ZOLUnicodeString(parameter));
        return problem;
    }
};

} // namespace trellis
