#include "model/ImportText.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

namespace trellis {

namespace {

constexpr int Unreadable = 60202;
constexpr int HasProblems = 60203;
constexpr int TooLarge = 60211;

struct FaultNumber {
    CsvReader::Fault fault;
    int number;
};

constexpr FaultNumber faultNumbers[] = {{CsvReader::Fault::UnclosedQuote, 60213},
                                        {CsvReader::Fault::LongField, 60214},
                                        {CsvReader::Fault::StrayQuote, 60215}};

} // namespace

void ImportText::Note(Problems& problems, int line, int number, const std::vector<std::string>& parameters) {
    problems.push_back(ImportProblem::Of(line, number, parameters));
}

bool ImportText::Refuse(const ZOLUnicodeString& name, Problems& problems, ZOLGYRError& error) {
    std::ranges::stable_sort(problems, {}, &ImportProblem::line);
    error.Set(HasProblems, {name, ZOLUnicodeString(std::to_string(problems.size()))});
    return false;
}

bool ImportText::ReadFile(const ZOLUnicodeString& path, std::size_t largest, std::string& text,
                          Problems& problems, ZOLGYRError& error) {
    const std::size_t limit = largest << 20;
    text.clear();
    errno = 0;
    std::ifstream file(path.Bytes(), std::ios::binary);
    char buffer[1 << 16];
    while (file && text.size() <= limit && file.read(buffer, sizeof buffer).gcount() > 0)
        text.append(buffer, static_cast<std::size_t>(file.gcount()));
    // A folder can be opened; only reading it fails.
    if (!file.is_open() || file.bad() || (text.empty() && errno != 0)) {
        error.Set(Unreadable, {path, ZOLUnicodeString(std::strerror(errno))});
        return false;
    }
    if (text.size() <= limit)
        return true;
    Note(problems, 0, TooLarge, {std::to_string(largest)});
    return Refuse(path, problems, error);
}

StructureImport::Form ImportText::FormOf(const ZOLUnicodeString& path) {
    return path.Bytes().ends_with(".json") ? StructureImport::Form::Json : StructureImport::Form::Csv;
}

bool ImportText::CheckRow(const CsvReader::Row& row, Problems& problems) {
    const auto* known = std::ranges::find(faultNumbers, row.fault, &FaultNumber::fault);
    if (known == std::end(faultNumbers))
        return true;
    const bool isLength = row.fault == CsvReader::Fault::LongField;
    Note(problems, row.line, known->number,
         isLength ? std::vector{std::to_string(CsvReader::LongestField)} : std::vector<std::string>());
    return false;
}

} // namespace trellis
