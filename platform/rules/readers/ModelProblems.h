#pragma once

#include "values/ImportProblem.h"

#include <string_view>
#include <unordered_set>

namespace trellis {

// ModelProblems: what a reader finds wrong with a text, the first problem of each line. Readers stop when it
// is full, so that a file of another kind does not fill the screen.
class ModelProblems {
public:
    static constexpr std::size_t Most = 100;

    // The text without its byte order mark; lines that are no UTF-8 are noted: 60212.
    std::string_view CheckText(std::string_view text);
    // The parameters are those of the message, which shows only their beginning.
    void Note(int line, int number, const std::vector<std::string>& parameters = {});
    bool IsEmpty() const { return _problems.empty(); }
    bool IsFull() const { return _problems.size() >= Most; }
    // All of them in order of lines; none are left.
    std::vector<ImportProblem> Take();

private:
    std::vector<ImportProblem> _problems;
    std::unordered_set<int> _lines; // that have a problem
};

} // namespace trellis
