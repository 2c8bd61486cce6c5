#include "rules/readers/ModelProblems.h"

#include "values/Utf8Check.h"

#include <algorithm>
#include <utility>

namespace trellis {

namespace {

constexpr int LongestShown = 60; // code points of a text of the file in a message

} // namespace

std::string_view ModelProblems::CheckText(std::string_view text) {
    return CheckedUtf8(text, _problems, Most);
}

void ModelProblems::Note(int line, int number, const std::vector<std::string>& parameters) {
    if (IsFull() || !_lines.insert(line).second)
        return;
    std::vector<std::string> shown;
    for (const std::string& parameter : parameters)
        shown.push_back(ZOLUnicodeString(parameter).SubString(0, LongestShown).Bytes());
    _problems.push_back(ImportProblem::Of(line, number, shown));
}

std::vector<ImportProblem> ModelProblems::Take() {
    std::ranges::stable_sort(_problems, {}, &ImportProblem::line);
    return std::exchange(_problems, {});
}

} // namespace trellis
